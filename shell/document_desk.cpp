#include "shell/document_desk.h"

#include "shell/documents.h"
#include "shell/shipped_session.h"
#include "shell/text_format.h"

#include <filesystem>

namespace tarnel {

DocumentDesk::DocumentDesk(UserControl2& simulation, const CommandButton& loadSessionItem,
                           PracticeDesk& practiceDesk, BoxDesk& boxDesk, OutsideWorld& world)
    : sim(simulation),
      loadSession(loadSessionItem),
      practice(practiceDesk),
      boxes(boxDesk),
      outside(world) {}

std::string DocumentDesk::inApplicationFolder(const char* german, const char* other) const {
    return sim.c_MainAppPath.get() + "/" + (boxes.texts.isGerman() ? german : other);
}

bool DocumentDesk::open(const std::string& path, int page) {
    if (outside.openDocument(path, page))
        return true;
    boxes.show(Text::windowTitle, filledIn(boxes.texts[Text::noReader], {path}));
    return false;
}

/// False, with a box, if it is missing or nothing opens it.
bool DocumentDesk::openShipped(const char* german, const char* other) {
    const std::string path = inApplicationFolder(german, other);
    if (std::filesystem::exists(path))
        return open(path, 0);
    boxes.show(Text::windowTitle, filledIn(boxes.texts[Text::documentMissing], {path}));
    return false;
}

void DocumentDesk::openBook(int page) {
    const std::string path = inApplicationFolder("Buch/buch.pdf", "Buch/buch_en.pdf");
    if (std::filesystem::exists(path))
        open(path, page);
    else
        boxes.show(Text::bookMissingTitle, std::string(boxes.texts[Text::bookMissing]) + "\n" +
                                               std::string(boxes.texts[Text::bookMissingInstall]));
}

/// In flight and in an exercise the chart opens without its session.
void DocumentDesk::openApproachChart(std::size_t index) {
    const ApproachChart& chart = approachCharts()[index];
    boxes.show(Text::chartNoticeTitle, std::string(boxes.texts[Text::chartNotice]),
               BoxKind::notice);
    const std::string file = std::string("default/charts/") + chart.document;
    if (!openShipped(file.c_str(), file.c_str()) || !loadSession.enabled())
        return;
    if (std::filesystem::exists(
            shippedSession(sim.c_MainAppPath, chart.session, boxes.texts, false)))
        practice.open(chart.session, false);
}

void DocumentDesk::showAbout() {
    boxes.show(Text::aboutTitle, std::string(boxes.texts[Text::aboutText]), BoxKind::notice);
}

} // namespace tarnel
