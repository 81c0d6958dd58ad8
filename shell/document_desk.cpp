#include "shell/document_desk.h"

#include "core/rounding.h"
#include "platform/path_text.h"
#include "shell/documents.h"
#include "shell/program_version.h"
#include "shell/text_format.h"

#include <filesystem>

namespace tarnel {

namespace {

bool exists(const std::string& path) {
    std::error_code failure;
    return std::filesystem::exists(pathOf(path), failure);
}

} // namespace

DocumentDesk::DocumentDesk(UserControl2& simulation, TrainerControls& controls,
                           PracticeDesk& practiceDesk, BoxDesk& boxDesk, OutsideWorld& world)
    : sim(simulation),
      loadSession(controls.fileMenu.loadSession),
      practice(practiceDesk),
      boxes(boxDesk),
      outside(world),
      bookForm(controls.state, *this, world.settings(), boxDesk.texts),
      chartForm(controls.state, *this, world.settings(), boxDesk.texts) {}

std::string DocumentDesk::inApplicationFolder(const std::string& name) const {
    return sim.c_MainAppPath.get() + "/" + name;
}

std::string DocumentDesk::helpFile(const std::string& page) const {
    return inApplicationFolder((boxes.texts.isGerman() ? "Hilfe/de/" : "Hilfe/en/") + page +
                               ".html");
}

/// False, with a box, if it is missing.
bool DocumentDesk::isThere(const std::string& path) {
    if (exists(path))
        return true;
    boxes.show(Text::windowTitle, filledIn(boxes.texts[Text::documentMissing], {path}));
    return false;
}

/// False, with a box, if there is no reader.
bool DocumentDesk::openDocument(const std::string& path, int page) {
    const auto tell = [this, path] {
        boxes.show(Text::noReaderTitle, std::string(boxes.texts[Text::noReader]) + "\n" +
                                            std::string(boxes.texts[Text::noReaderInstall]) + "\n" +
                                            filledIn(boxes.texts[Text::noReaderPath], {path}));
    };
    const bool opened = outside.openDocument(path, page, tell);
    if (!opened)
        tell();
    return opened;
}

void DocumentDesk::OpenBook(double page) {
    const std::string path =
        inApplicationFolder(boxes.texts.isGerman() ? "Buch/buch.pdf" : "Buch/buch_en.pdf");
    if (exists(path))
        openDocument(path, toInt16(page));
    else
        boxes.show(Text::bookMissingTitle, std::string(boxes.texts[Text::bookMissing]) + "\n" +
                                               std::string(boxes.texts[Text::bookMissingInstall]));
}

/// In flight and in an exercise the chart opens without its session.
void DocumentDesk::openApproachChart(std::size_t index) {
    const ApproachChart& chart = approachCharts()[index];
    boxes.show(Text::chartNoticeTitle,
               std::string(boxes.texts[Text::chartOrigin]) + "\n\n" +
                   std::string(boxes.texts[Text::chartNotice]),
               BoxKind::notice);
    const std::string path = inApplicationFolder(std::string("default/charts/") + chart.document);
    if (isThere(path) && openDocument(path, 0) && loadSession.enabled())
        practice.open(chart.session, false);
}

void DocumentDesk::openHelp(const std::string& page) {
    const std::string path = helpFile(page);
    const std::string shown = exists(path) ? path : helpFile(helpContentsPage);
    if (isThere(shown))
        outside.showHelp(shown);
}

void DocumentDesk::openInBrowser(const std::string& page) {
    const std::string path = helpFile(page);
    const auto tell = [this, path] {
        boxes.show(Text::windowTitle, filledIn(boxes.texts[Text::noBrowser], {path}));
    };
    if (isThere(path) && !outside.openInBrowser(path, tell))
        tell();
}

void DocumentDesk::openUserGuide() {
    openInBrowser(helpContentsPage);
}

void DocumentDesk::openProductPage() {
    openInBrowser(helpProductPage);
}

void DocumentDesk::showAbout() {
    std::string about = filledIn(boxes.texts[Text::aboutVersion], {programVersion()});
    for (const Text paragraph :
         {Text::aboutText, Text::aboutLicence, Text::aboutSources, Text::aboutLibraries})
        about += "\n\n" + std::string(boxes.texts[paragraph]);
    boxes.show(Text::aboutTitle, about, BoxKind::notice);
}

} // namespace tarnel
