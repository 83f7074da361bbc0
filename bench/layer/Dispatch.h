// Messages on their way to a handler, beside a window procedure with a switch.
#pragma once

namespace bench {

class Report;

void MeasureDispatch(Report& report);

} // namespace bench
