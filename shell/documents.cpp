#include "shell/documents.h"

namespace tarnel {

namespace {

constexpr ApproachChart charts[] = {
    {Text::approachEddk, "eddk113app[1].pdf", "orient eddk 32r.ts"},
    {Text::approachEddl, "eddl111app[1].pdf", "orient eddl 05r.ts"},
    {Text::approachEddr, "eddr111app[1].pdf", "orient eddr 27.ts"},
    {Text::approachEdds, "edds112app[1].pdf", "orient edds 25.ts"},
    {Text::approachEdma, "edma111app[1].pdf", "orient edma 25.ts"},
    {Text::approachLime, "lime111app[1].pdf", "orient lime 28.ts"},
    {Text::approachLkkv, "lkkv111app[1].pdf", "orient lkkv 29.ts"},
    {Text::approachLkpr, "lkpr112app[1].pdf", "orient lkpr 24.ts"},
    {Text::approachLowg, "lowg111app[1].pdf", "orient lowg 35.ts"},
};

constexpr BookChapter chapters[] = {
    {"pdf0", Text::bookTips, Text::tipsHsiAndStdVor, Text::tipsAdfPosition},
    {"pdf1", Text::bookFacilities, Text::bookVorBasics, Text::bookNdbAdfBasics},
    {"pdf2", Text::bookPresentations, Text::bookCommandInstrument, Text::bookIndicatingInstrument},
    {"pdf3", Text::bookIndicator, Text::bookOrientationStdVor, Text::bookStdIlsInterpretation},
    {"pdf4", Text::bookIlsExamples, Text::bookIlsTriest, Text::bookIlsOstrava},
    {"pdf5", Text::bookRmiAdf, Text::bookRmiAdfInterpretation, Text::bookDmeArcStdVor},
    {"pdf6", Text::bookInterceptions, Text::bookRmiHsiInterceptions, Text::bookQdrInterceptions},
    {"pdf7", Text::bookWind, Text::bookWindComponents, Text::bookDirectionalGyro},
    {"pdf8", Text::bookHolding, Text::bookHoldingProcedures, Text::bookHoldingExamples},
    {"pdf9", Text::bookOrientation, Text::bookFixLinz, Text::bookTwoNeedles},
};

} // namespace

std::span<const ApproachChart> approachCharts() {
    return charts;
}

std::span<const BookChapter> bookChapters() {
    return chapters;
}

} // namespace tarnel
