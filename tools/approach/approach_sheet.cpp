#include "tools/approach/approach_sheet.h"

#include "tools/approach/head_painter.h"
#include "tools/approach/plan_painter.h"
#include "tools/approach/profile_painter.h"
#include "tools/approach/sheet_ink.h"
#include "tools/approach/tables_painter.h"

#include <QBuffer>
#include <QPdfWriter>

namespace tarnel {

namespace {

constexpr int dotsPerInch = 1200;
constexpr double unitsPerInch = 254;

void paintFrames(QPainter& painter) {
    using namespace sheet_parts;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(ink::pen(ink::thin));
    for (const QRectF& part : {plan, profile, tables, notes})
        painter.drawRect(part);
    painter.setPen(ink::pen(ink::medium));
    painter.drawRect(QRectF(head.topLeft(), warning.bottomRight()));
}

void paintWarning(QPainter& painter) {
    painter.fillRect(sheet_parts::warning, look::day.ink);
    ink::text(painter, sheet_parts::warning, Qt::AlignCenter,
              QStringLiteral("NOT FOR NAVIGATIONAL PURPOSES - INFORMATION ONLY"),
              ink::type(28, true), look::paper);
}

void paintSheet(QPainter& painter, const ApproachSheet& sheet) {
    painter.setRenderHint(QPainter::Antialiasing);
    paintHead(painter, sheet_parts::head, sheet);
    paintPlan(painter, sheet_parts::plan, sheet);
    paintProfile(painter, sheet_parts::profile, sheet);
    paintTables(painter, sheet_parts::tables, sheet);
    paintNotes(painter, sheet_parts::notes, sheet);
    paintWarning(painter);
    paintFrames(painter);
}

} // namespace

QByteArray pdfOf(const ApproachSheet& sheet) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(
        ink::qt(sheet.source.icao + " " + sheet.source.place + ", runway " + sheet.source.runway));
    writer.setCreator(QStringLiteral("Tarnel"));
    writer.setPageSize(QPageSize(QPageSize::A5));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(dotsPerInch);
    QPainter painter(&writer);
    painter.scale(dotsPerInch / unitsPerInch, dotsPerInch / unitsPerInch);
    paintSheet(painter, sheet);
    painter.end();
    return bytes;
}

} // namespace tarnel
