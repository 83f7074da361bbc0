#include "About.h"
#include "testkit/Pen.h"
#include "../../samples/classic/rangesketch/resource.h"

using namespace testkit;

TEST(ProgramsTest, RangeSketchMeasuresWhatIsDrawn) {
    const Program program(L"RangeSketch", L"RangeSketch");
    RECT sketch = {};
    ::GetWindowRect(program.Item(IDC_SKETCH), &sketch);
    for (const POINT point : {POINT{20, 20}, POINT{120, 20}, POINT{120, 70}, POINT{20, 70}})
        pen::Tap({sketch.left + point.x, sketch.top + point.y});
    // 100 + 50 + 100 pixels of a tenth of a metre
    program.ExpectText(IDC_LENGTH, L"25.00 m (1 px = 100 mm)");
    program.Tap(IDC_COMPUTE);
    program.ExpectText(IDC_AREA, L"Area 50.00 m\u00B2");
    ShowAbout(program, L"About RangeSketch");
    ::PostMessage(program.Main(), WM_CLOSE, 0, 0);
    EXPECT_EQ(0U, program.End());
}
