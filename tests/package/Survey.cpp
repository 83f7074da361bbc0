// Computes with survey values and their texts.
#include "Bits.h"
#include "Tesuvo.h"

#include "survey/2DCircle.h"
#include "survey/2DLine.h"

int main() {
    const CCoordinate a(1234.5678, -352.001, 12.3, 3), b(10.25, 77.7, 1.1, 3);
    const CCoordinate sum = a + b;
    Print("sum", {sum.GetN(), sum.GetE(), sum.GetZ()});
    const C2DLine line(a, b);
    Print("line", {line.GetSlope(), line.GetInterceptN(), line.GetInterceptE()});
    Print("radius", {C2DCircle(a, -0.1).GetRadius()});
    double value = 0;
    const CString strNumber(L"-1,234.567e-3");
    Print("number", {TVString2Double(&strNumber, &value) ? value : -1});
    std::printf("texts %ls %ls %ls\n", static_cast<LPCTSTR>(a.GetNString()),
                static_cast<LPCTSTR>(a.GetEString()), static_cast<LPCTSTR>(a.GetZString()));
}
