#include "shell/documents.h"

#include "shell/form_1.h"
#include "shell/text_format.h"

#include <filesystem>

namespace tarnel {

namespace {

constexpr const char* chartsFolder = "default/charts/";

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

bool Form1::openDocument(const std::string& path, int page) {
    if (outside.openDocument(path, page))
        return true;
    showBox(text(Text::windowTitle), filledIn(texts[Text::noReader], {path}));
    return false;
}

/// A document of the application folder, by the language's name. Its absence is told in a box.
bool Form1::openShipped(const std::string& german, const std::string& other) {
    const std::string name = texts.isGerman() ? german : other;
    const std::string path = UserControl11.c_MainAppPath.get() + "/" + name;
    if (std::filesystem::exists(path))
        return openDocument(path, 0);
    showBox(text(Text::windowTitle), filledIn(texts[Text::documentMissing], {path}));
    return false;
}

void Form1::openBook(int page) {
    const std::string name = texts.isGerman() ? "/Buch/buch.pdf" : "/Buch/buch_en.pdf";
    const std::string path = UserControl11.c_MainAppPath.get() + name;
    if (std::filesystem::exists(path))
        openDocument(path, page);
    else
        showBox(text(Text::bookMissingTitle),
                text(Text::bookMissing) + "\n" + text(Text::bookMissingInstall));
}

/// In flight and in an exercise the chart opens without its session.
void Form1::openApproachChart(std::size_t index) {
    const ApproachChart& chart = approachCharts()[index];
    showBox(text(Text::chartNoticeTitle), text(Text::chartNotice), BoxKind::notice);
    const std::string file = std::string(chartsFolder) + chart.document;
    if (!openShipped(file, file))
        return;
    if (fileMenu.loadSession.enabled() &&
        std::filesystem::exists(shippedSession(chart.session, false)))
        openPractice(chart.session, false);
}

void Form1::openHelp() {
    openShipped("hilfe_de.html", "help_en.html");
}

void Form1::openUserGuide() {
    openShipped("handbuch_de.pdf", "guide_en.pdf");
}

void Form1::openProductPage() {
    openShipped("tarnel_de.html", "tarnel_en.html");
}

} // namespace tarnel
