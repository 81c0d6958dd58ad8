#include "shell/pdf_form.h"

#include "exercises/settings_store.h"
#include "shell/document_desk.h"
#include "shell/documents.h"

namespace tarnel {

PdfForm::PdfForm(FormState& state, DocumentDesk& documentDesk, SettingsStore& settings,
                 const StringTable& table, const char* formName, Text formTitle, Text item)
    : name(formName),
      title(formTitle),
      shown(state, formName, item),
      Check1(state, "Check1", Text::alwaysOnTop),
      desk(documentDesk),
      texts(table) {
    constexpr auto application = "tarnel";
    constexpr auto section = "always on top";
    Check1.show(settings.value(application, section, name, {}) == "1" ? 1 : 0);
    Check1.onClick = [this, &settings] {
        settings.setValue(application, section, name, std::to_string(Check1.value()));
    };
}

std::vector<PdfForm::Line> frmBuchPDF::lines() const {
    std::vector<Line> all{{.caption = std::string(texts[Text::bookStart])}};
    int index = 0;
    for (const BookChapter& chapter : bookChapters()) {
        all.push_back({.caption = std::string(texts[chapter.header]), .heads = true});
        for (int id = static_cast<int>(chapter.first); id <= static_cast<int>(chapter.last); ++id)
            all.push_back({.caption = std::string(texts.at(id)),
                           .page = texts.bookPage(index++),
                           .within = true});
    }
    for (const auto& [caption, page] :
         {std::pair(Text::bookAbbreviations, abbreviationsPage), {Text::bookIndex, bookIndexPage}})
        all.push_back({.caption = std::string(texts[caption]), .page = texts.bookPage(page)});
    return all;
}

void frmBuchPDF::open(std::size_t line) {
    const Line chosen = lines().at(line);
    if (!chosen.heads)
        desk.OpenBook(chosen.page);
}

std::vector<PdfForm::Line> frmJeppPDF::lines() const {
    std::vector<Line> all;
    for (const ApproachChart& chart : approachCharts())
        all.push_back({.caption = std::string(texts[chart.name])});
    return all;
}

void frmJeppPDF::open(std::size_t line) {
    desk.openApproachChart(line);
}

} // namespace tarnel
