#include "tools/course/sheets.h"

#include "authoring/wording.h"
#include "window/dials/instrument_painter.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace tarnel {

namespace {

// Millimetres on A4 with 18 mm of margin.
constexpr double pageWidth = 174;
constexpr double pageHeight = 261;
constexpr double dialSide = 66;
constexpr double chartSide = 100;
constexpr double chartAlone = 2 * dialSide + 3; ///< where no dials stand beside it
constexpr double lineHeight = 6;
constexpr int solutionsOnPage = 4;

/// Sets text and pictures down a page, in millimetres.
class Page {
  public:
    Page(QPainter& onto, double dotsPerMillimetre) : painter(onto), scale(dotsPerMillimetre) {}

    void text(double x, double y, double width, const QString& words, double points, bool bold,
              Qt::Alignment alignment = Qt::AlignLeft) {
        QFont font(QStringLiteral("Liberation Sans"));
        font.setPointSizeF(points);
        font.setBold(bold);
        painter.setFont(font);
        painter.drawText(QRectF(x * scale, y * scale, width * scale, pageHeight * scale),
                         alignment | Qt::TextWordWrap, words);
    }
    void chart(double x, double y, double side, const QPicture& picture, double units) {
        painter.save();
        painter.translate(x * scale, y * scale);
        // A picture is drawn in the size that it has on paper, whatever its own resolution.
        const double dots = double(painter.device()->logicalDpiX()) / picture.logicalDpiX();
        const double size = side * scale / units / dots;
        painter.scale(size, size);
        painter.drawPicture(0, 0, picture);
        painter.restore();
    }
    void dial(double x, double y, const InstrumentPicture& picture, InstrumentPainter& dials) {
        painter.save();
        painter.translate(x * scale, y * scale);
        dials.paint(painter, picture, dialSide * scale);
        painter.restore();
    }
    void box(double x, double y) {
        painter.setPen(QPen(Qt::black, 0.25 * scale));
        painter.drawRect(QRectF(x * scale, (y + 0.8) * scale, 3 * scale, 3 * scale));
    }
    void rule(double y, double from = 0, double to = pageWidth) {
        painter.setPen(QPen(Qt::gray, 0.2 * scale));
        painter.drawLine(QPointF(from * scale, y * scale), QPointF(to * scale, y * scale));
        painter.setPen(Qt::black);
    }

  private:
    QPainter& painter;
    double scale;
};

/// Sets the sheets of a course.
class Sheets {
  public:
    Sheets(QPdfWriter& file, const SheetStyle& look)
        : writer(file),
          painter(&file),
          page(painter, file.resolution() / 25.4),
          style(look),
          pictures(look.pictures),
          dials(pictures, Numerals::text) {}

    void question(const PrintedQuestion& asked, int number, int count);
    void solutions(const std::vector<PrintedQuestion>& questions);

  private:
    void head(const QString& right) {
        if (begun)
            writer.newPage();
        begun = true;
        page.text(0, 0, pageWidth, style.title, 12, true);
        page.text(0, 0, pageWidth, right, 11, false, Qt::AlignRight);
        page.rule(7);
    }
    [[nodiscard]] QString words(Phrase phrase, std::initializer_list<LocalText> values = {}) const {
        return QString::fromStdString(worded(phrase, values).in(style.language));
    }
    void answers(const PrintedQuestion::Row& row, double y);
    void solution(const PrintedQuestion& asked, int number, double y);

    QPdfWriter& writer;
    QPainter painter;
    Page page;
    const SheetStyle& style;
    PictureStore pictures;
    InstrumentPainter dials;
    bool begun = false;
};

void Sheets::question(const PrintedQuestion& asked, int number, int count) {
    head(words(Phrase::sheetQuestion, {tarnel::number(number), tarnel::number(count)}));
    double y = 12;
    if (asked.left && asked.right) {
        page.dial(0, y, *asked.left, dials);
        page.dial(0, y + dialSide + 3, *asked.right, dials);
    }
    const double side = asked.left ? chartSide : chartAlone;
    page.chart(pageWidth - side, y, side, asked.chart, PrintedQuestion::chartUnits);
    y += 2 * dialSide + 9;
    for (const QString& line : {asked.task, asked.known}) {
        if (line.isEmpty())
            continue;
        page.text(0, y, pageWidth, line, 12, true);
        y += lineHeight + 1;
    }
    for (const PrintedQuestion::Row& row : asked.rows) {
        page.text(0, y, pageWidth, row.prompt, 11, false);
        y += lineHeight;
        answers(row, y);
        y += lineHeight + 4;
    }
}

/// Boxes to tick for a few offers; a line to write on for a number, or a text of a long list.
void Sheets::answers(const PrintedQuestion::Row& row, double y) {
    constexpr int mostBoxes = 6;
    constexpr double lineWidth = 60;
    constexpr double numberWidth = 24;
    const bool ticks = !row.offers.isEmpty() && row.offers.size() <= mostBoxes;
    const qsizetype parts = (ticks ? row.offers.size() : 0) + row.units.size();
    if (parts == 0)
        return page.rule(y + lineHeight, 0, lineWidth);
    const double width = std::min(pageWidth / static_cast<double>(parts), lineWidth);
    double x = 0;
    for (const QString& offer : ticks ? row.offers : QStringList{}) {
        page.box(x, y);
        page.text(x + 5, y, width - 6, offer, 11, false);
        x += width;
    }
    for (const QString& unit : row.units) {
        page.rule(y + lineHeight - 1, x, x + numberWidth);
        page.text(x + numberWidth + 1, y, width - numberWidth, unit, 11, false);
        x += width;
    }
}

void Sheets::solutions(const std::vector<PrintedQuestion>& questions) {
    constexpr double height = pageHeight / solutionsOnPage - 3;
    for (std::size_t i = 0; i < questions.size(); ++i) {
        if (i % solutionsOnPage == 0)
            head(words(Phrase::sheetSolutions));
        const auto place = static_cast<double>(i % solutionsOnPage);
        solution(questions[i], static_cast<int>(i) + 1, 10 + place * height);
    }
}

void Sheets::solution(const PrintedQuestion& asked, int number, double y) {
    constexpr double side = 58;
    page.chart(pageWidth - side, y, side, asked.flown, PrintedQuestion::solutionUnits);
    page.text(0, y, 10, QString::number(number), 12, true);
    double line = y;
    QStringList given{asked.task, asked.known};
    given.removeAll(QString());
    if (!given.isEmpty()) {
        page.text(10, line, pageWidth - side - 14, given.join(QStringLiteral("; ")), 9, false);
        line += 2 * lineHeight;
    }
    for (const PrintedQuestion::Row& row : asked.rows) {
        page.text(10, line, 66, row.prompt, 9, false);
        page.text(78, line, 34, row.solution, 10, true);
        line += lineHeight * 1.6;
    }
}

} // namespace

QByteArray sheets(const SheetStyle& style, const std::vector<PrintedQuestion>& questions) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(QMarginsF(18, 18, 18, 18), QPageLayout::Millimeter);
        writer.setResolution(300);
        writer.setTitle(style.title);
        Sheets pages(writer, style);
        const int count = static_cast<int>(questions.size());
        for (int i = 0; i < count; ++i)
            pages.question(questions[static_cast<std::size_t>(i)], i + 1, count);
        pages.solutions(questions);
    }
    return bytes;
}

} // namespace tarnel
