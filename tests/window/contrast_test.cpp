#include "look/panel_look.h"
#include "window/chart/chart_view.h"
#include "window/dials/channel_lamp.h"
#include "window/dials/instrument_header.h"
#include "window/help/help_window.h"
#include "window/radios/dme_selector.h"
#include "window/student_fixture.h"
#include "window/widgets/control_style.h"
#include "window/widgets/dark_button.h"
#include "window/widgets/dark_list.h"
#include "window/widgets/digit_display.h"
#include "window/widgets/module_frame.h"

#include <QPalette>

#include <map>

namespace tarnel {
namespace {

using look::Colours;
using Member = QColor Colours::*;

constexpr double readable = 4.5; ///< WCAG 2.1, 1.4.3

QPalette desktop(unsigned window, unsigned text, unsigned highlight = 0x3DAEE9) {
    QPalette palette{look::rgb(window)};
    palette.setColor(QPalette::WindowText, look::rgb(text));
    palette.setColor(QPalette::Link, look::rgb(text));
    palette.setColor(QPalette::Highlight, look::rgb(highlight));
    return palette;
}

/// Fusion's, KDE's and GNOME's light and dark, and those of high contrast.
const std::vector<QPalette>& desktops() {
    static const std::vector<QPalette> all = {
        desktop(0xEFEFEF, 0x000000),           desktop(0xEFF0F1, 0x232629),
        desktop(0x2A2E32, 0xFCFCFC),           desktop(0x353535, 0xFFFFFF),
        desktop(0x000000, 0xFFFFFF, 0x1AEBFF), desktop(0x000000, 0xFFFF00, 0x0000FF),
        desktop(0xFFFFFF, 0x000000, 0x37006E), desktop(0xFFFFFF, 0x000000, 0xFFFF00)};
    return all;
}

TEST(Contrast, AgreesWithPublishedFigures) {
    EXPECT_DOUBLE_EQ(look::contrast(Qt::white, Qt::black), 21);
    // WebAIM's contrast checker.
    EXPECT_NEAR(look::contrast(look::rgb(0x777777), Qt::white), 4.48, 0.005);
    EXPECT_NEAR(look::contrast(look::rgb(0x0000FF), Qt::white), 8.59, 0.005);
}

TEST(Contrast, EveryTextOnEveryGroundThatItStandsOnCanBeRead) {
    const std::vector<std::pair<Member, std::vector<Member>>> used = {
        {&Colours::ink,
         {&Colours::desktop, &Colours::bars, &Colours::card, &Colours::field, &Colours::pressed,
          &Colours::tint, &Colours::focusTint}},
        {&Colours::secondaryInk,
         {&Colours::desktop, &Colours::card, &Colours::field, &Colours::tint}},
        {&Colours::disabledInk, {&Colours::bars, &Colours::card, &Colours::field}},
        {&Colours::accent,
         {&Colours::desktop, &Colours::card, &Colours::field, &Colours::tint, &Colours::focusTint}},
        {&Colours::onAccent,
         {&Colours::accent, &Colours::accentUnderMouse, &Colours::accentPressed}},
        {&Colours::right, {&Colours::card, &Colours::tint}},
        {&Colours::wrong, {&Colours::desktop, &Colours::card}},
        {&Colours::exceeded, {&Colours::card, &Colours::tint}},
        {&Colours::solution, {&Colours::card}},
        {&Colours::first, {&Colours::card}},
        {&Colours::second, {&Colours::card}},
        {&Colours::localizer, {&Colours::card}},
        {&Colours::curve, {&Colours::card}}};
    for (const QPalette& palette : desktops()) {
        const Colours colours = look::coloursFor(palette);
        const auto name = [](const QColor& colour) { return colour.name().toStdString(); };
        SCOPED_TRACE(name(palette.color(QPalette::Window)) + " " +
                     name(palette.color(QPalette::Highlight)));
        for (std::size_t i = 0; i < used.size(); ++i)
            for (const Member ground : used[i].second)
                EXPECT_GE(look::contrast(colours.*used[i].first, colours.*ground), readable)
                    << i << ": " << name(colours.*used[i].first) << " on " << name(colours.*ground);
        for (const Member verdict : {&Colours::right, &Colours::wrong, &Colours::solution})
            EXPECT_GE(
                look::contrast(colours.*verdict, look::over(colours.card, colours.*verdict, 0.09)),
                readable);
        QPalette polished = palette;
        ControlStyle().polish(polished);
        EXPECT_EQ(look::coloursFor(polished), colours) << "asked again";
        EXPECT_EQ(look::contrast(colours.ink, colours.desktop) > 20,
                  look::contrast(palette.color(QPalette::WindowText),
                                 palette.color(QPalette::Window)) > 20);
    }
}

/// The strongest contrast that a part of a picture has with the colour that most of it has.
double strongest(const QImage& image, const QRect& part) {
    std::map<QRgb, int> counts;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            ++counts[image.pixel(x, y)];
    const QColor ground =
        std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; })->first;
    double most = 1;
    for (const auto& [colour, count] : counts)
        most = std::max(most, look::contrast(QColor(colour), ground));
    return most;
}

// What is painted by hand, free, locked by a question and with the DME switched off.
TEST_F(Student, ReadsThePanelInEveryState) {
    open(englishTable(), {1024, 768});
    const auto expectReadable = [&](const char* state) {
        constexpr int sharpness = 4; // so that thin strokes have a pixel of their own colour
        QWidget& panel = *find<QWidget>("NAVControlFace1").parentWidget();
        QImage image(panel.size() * sharpness, QImage::Format_RGB32);
        image.setDevicePixelRatio(sharpness);
        panel.render(&image);
        int count = 0;
        for (auto* part : panel.findChildren<QWidget*>()) {
            const bool texts = dynamic_cast<DarkButton*>(part) || dynamic_cast<DarkList*>(part) ||
                               dynamic_cast<ChannelLamp*>(part) ||
                               dynamic_cast<DigitDisplay*>(part);
            const bool head = dynamic_cast<ModuleFrame*>(part);
            auto* source = dynamic_cast<DmeSelector*>(part);
            if (!part->isVisible() || !(texts || head || source))
                continue;
            std::vector<QRect> places{part->rect().adjusted(4, 4, -4, -4)};
            if (head)
                places.front().setHeight(14);
            if (source) {
                places.clear();
                for (const DmeMode mode : {DmeMode::freq, DmeMode::r1, DmeMode::r2}) {
                    const QPoint middle = source->wordCentre(mode).toPoint();
                    places.emplace_back(middle - QPoint(part->width() - middle.x() - 4, 6),
                                        QSize(20, 12));
                }
            }
            for (const QRect& place : places) {
                constexpr double blank = 2; // what is kept secret shows no more than its point
                const QPoint corner = part->mapTo(&panel, place.topLeft());
                const double found =
                    strongest(image, QRect(corner * sharpness, place.size() * sharpness));
                EXPECT_TRUE(found >= readable ||
                            (dynamic_cast<DigitDisplay*>(part) && found < blank))
                    << found << state << ' ' << part->metaObject()->className() << ' '
                    << part->objectName().toStdString() << part->isEnabled();
            }
            ++count;
        }
        EXPECT_GT(count, 20);
    };
    expectReadable("free");
    form->DMEControlFace1.c_OnOff = 0;
    settle();
    expectReadable("without DME");
    form->exerciseMenu.exercises.front()->click();
    settle();
    expectReadable("locked");
}

// As when the desktop's scheme changes while the program runs.
TEST_F(Student, SeesTheWindowFollowTheDesktop) {
    open();
    const auto groundOf = [this](const char* name) {
        auto& part = find<QWidget>(name);
        return part.grab().toImage().pixelColor(part.width() / 2, 3);
    };
    auto* chart = window->findChild<ChartView*>();
    const auto paper = [chart] {
        return chart->grab(QRect(chart->rect().center(), QSize(60, 60))).toImage();
    };
    const QImage byDay = paper();
    HelpWindow help(englishTable());
    help.open(QString::fromStdString(applicationFolder) + QStringLiteral("/Hilfe/en/keys.html"));
    auto& page = *help.findChild<QWidget*>(QStringLiteral("HelpPage"));
    for (const QPalette& palette : desktops()) {
        QPalette polished = palette;
        ControlStyle().polish(polished);
        QApplication::setPalette(polished);
        settle();
        const QImage helpPage = page.grab().toImage();
        EXPECT_EQ(helpPage.pixelColor(3, 3), look::colours().field);
        EXPECT_GE(strongest(helpPage, page.rect().adjusted(0, 0, -30, 0)), readable);
        EXPECT_EQ(look::colours(), look::coloursFor(palette));
        EXPECT_EQ(groundOf("StatusPanels"), look::colours().bars);
        EXPECT_EQ(groundOf("Desk"), look::colours().desktop);
        EXPECT_EQ(paper(), byDay);
    }
    QApplication::setPalette(QPalette());
    settle();
    EXPECT_EQ(look::colours(), look::day);
}

} // namespace
} // namespace tarnel
