#include "window/debrief/debrief_page.h"

#include "core/run_time_error.h"
#include "look/look.h"
#include "persistence/file_path.h"
#include "persistence/save_file.h"
#include "shell/debrief_csv.h"
#include "shell/text_format.h"
#include "strings/cause_text.h"
#include "window/chart/chart_painter.h"
#include "window/debrief/debrief_layer.h"
#include "window/debrief/finding_list.h"
#include "window/debrief/plot_painter.h"
#include "window/debrief/plot_view.h"
#include "window/widgets/text_of.h"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

// The page in pixels: A4, upright.
constexpr QSizeF pageSize{744, 1052};
constexpr double margin = 32;
constexpr double gap = 16;
constexpr double titleHeight = 46;
constexpr double largestChart = 430;
constexpr double highestPlot = 300;
constexpr double chartShare = 0.6; ///< of what the findings leave
constexpr double pictureScale = 2;

class DebriefPage {
  public:
    explicit DebriefPage(const DebriefModel& debriefModel)
        : model(debriefModel), texts(model.boxes.texts), rows(findingRows(model.desk, texts)) {}

    void paint(QPainter& target) {
        painter = &target;
        painter->setRenderHint(QPainter::Antialiasing);
        painter->fillRect(QRectF(QPointF(), pageSize), look::paper);
        if (!model.desk.attempt())
            return;
        paintTitle();
        double room = pageSize.height() - 2 * margin - titleHeight - 2 * gap;
        for (const FindingRow& row : rows)
            room -= findingHeight(row, width, looks, rows);
        const double chart = std::clamp(room * chartShare, 200.0, largestChart);
        double top = margin + titleHeight;
        paintChart(top, chart);
        paintScores(top, chart);
        top += chart + gap;
        const double plot = std::clamp(room - chart, 150.0, highestPlot);
        paintPlot(top, plot);
        paintFindings(top + plot + gap);
    }

  private:
    void paintTitle() {
        painter->setPen(look::day.ink);
        painter->setFont(look::font(19, QFont::Bold));
        const QRectF line(margin, margin, width, 26);
        painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter, taskTitle(model));
        painter->drawText(line, Qt::AlignRight | Qt::AlignVCenter,
                          scoreOf(*model.desk.attempt(), texts));
        painter->setFont(look::font(look::denseType));
        painter->setPen(look::day.secondaryInk);
        painter->drawText(line.translated(0, 20), Qt::AlignLeft | Qt::AlignVCenter,
                          taskDetail(model));
    }

    void paintChart(double top, double side) {
        DebriefLayer layer(model);
        ChartPainter chart(model.sim, texts);
        chart.layer = &layer;
        painter->save();
        painter->translate(margin, top);
        chart.paint(*painter, side, pictureScale);
        painter->restore();
    }

    /// Beside the chart: flight, limits and attempts.
    void paintScores(double top, double side) {
        const double left = margin + side + gap;
        double y = top;
        const auto line = [&](const QString& said, bool bold) {
            painter->setFont(look::font(look::bodyType, bold ? QFont::Bold : QFont::Normal));
            painter->setPen(bold ? look::day.ink : look::day.secondaryInk);
            const QRectF room(left, y, pageSize.width() - margin - left, 60);
            QRectF used;
            painter->drawText(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, said, &used);
            y += used.height() + 5;
        };
        const auto attempt = [&](const Attempt& each, bool own) {
            line(attemptName(each, texts) + QStringLiteral(": ") + scoreOf(each, texts), own);
        };
        line(QString::fromStdString(portablePath(model.sim.c_SessionFileName).filename().string()),
             false);
        line(textOf(texts, Text::debriefLimits) + QStringLiteral(": ") +
                 textOf(texts,
                        model.controls.limits
                            .entries()[static_cast<std::size_t>(model.controls.limits.index())]),
             false);
        attempt(*model.desk.attempt(), true);
        for (const Attempt& earlier : model.desk.compared())
            attempt(earlier, false);
    }

    void paintPlot(double top, double height) {
        constexpr double readouts = 88; ///< mean nothing on paper
        const PlotScene scene = plotScene(model.desk);
        const PlotLayout layout = layOutPlot(scene, {width + readouts, height}, 1);
        painter->save();
        painter->translate(margin, top);
        const PlotPainter plot(layout, scene, texts, paperColours(), 1);
        plot.paint(*painter);
        const int moment = model.desk.moment();
        plot.paintCursor(*painter, moment, timeAt(*model.desk.attempt(), moment));
        painter->restore();
    }

    void paintFindings(double top) {
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const double height = findingHeight(rows[i], width, looks, rows);
            paintFinding(*painter, looks, rows[i], QRectF(margin, top, width, height),
                         model.desk.finding() == i, rows);
            top += height;
        }
    }

    DebriefModel model;
    const StringTable& texts;
    std::vector<FindingRow> rows;
    FindingLook looks{look::day, look::font(1).family()};
    QPainter* painter = nullptr;
    double width = pageSize.width() - 2 * margin;
};

std::string bytesOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

/// A way out: what is asked for, and what is written.
struct Way {
    CommandButton& control;
    Text filter;
    const char* extension;
    std::function<std::string()> bytes;
};

void save(const DebriefModel& model, const Way& way) {
    const std::string stem = portablePath(model.sim.c_SessionFileName).stem().string();
    const StringTable& texts = model.boxes.texts;
    const std::optional<std::string> path = model.boxes.chooseFile(
        {.saves = true,
         .title = std::string(texts[*way.control.caption()]),
         .present = (stem.empty() ? std::string(texts[Text::debriefUntitledFile]) : stem) + "." +
                    way.extension,
         .folder = model.sim.c_MainAppPath,
         .filter = std::string(texts[way.filter]),
         .extension = way.extension});
    if (!path)
        return;
    try {
        saveFileBytes(*path, way.bytes());
    } catch (const RunTimeError& error) {
        model.boxes.show(Text::windowTitle, filledIn(texts[Text::debriefNotWritten],
                                                     {portablePath(*path).filename().string(),
                                                      causeText(texts, error.cause())}));
    }
}

} // namespace

QByteArray debriefPdf(const DebriefModel& model) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins({});
    writer.setTitle(taskTitle(model));
    QPainter painter(&writer);
    painter.scale(writer.width() / pageSize.width(), writer.height() / pageSize.height());
    DebriefPage(model).paint(painter);
    painter.end();
    return bytes;
}

QByteArray debriefPng(const DebriefModel& model) {
    QImage image((pageSize * pictureScale).toSize(), QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(pictureScale, pictureScale);
    DebriefPage(model).paint(painter);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

void connectExports(const DebriefModel& model) {
    const auto connect = [&](const Way& way) {
        way.control.onClick = [model, way] { save(model, way); };
    };
    connect({model.controls.exportPage, Text::debriefPageFilter, "pdf",
             [model] { return bytesOf(debriefPdf(model)); }});
    connect({model.controls.exportPicture, Text::debriefPictureFilter, "png",
             [model] { return bytesOf(debriefPng(model)); }});
    connect({model.controls.exportValues, Text::debriefValuesFilter, "csv",
             [model] { return debriefCsv(model.desk, model.boxes.texts); }});
}

} // namespace tarnel
