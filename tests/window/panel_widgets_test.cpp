#include "instruments/instrument_fixture.h"
#include "strings/string_table.h"
#include "support/told.h"
#include "window/dials/instrument_view.h"
#include "window/radios/autopilot_module.h"
#include "window/radios/dme_module.h"
#include "window/radios/nav_module.h"
#include "window/radios/stopwatch_module.h"
#include "window/widgets/picture_store.h"

#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace tarnel {

namespace {

constexpr int oneNotch = 120;

void turnWheel(QWidget& widget, QPointF at, int delta) {
    QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

void dragRight(QWidget& widget, QPoint from, int pixels, Qt::MouseButton button) {
    QTest::mousePress(&widget, button, {}, from);
    const QPointF to = from + QPoint(pixels, 0);
    QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, button, {});
    QApplication::sendEvent(&widget, &move);
    QTest::mouseRelease(&widget, button, {}, to.toPoint());
}

/// A view that counts its paints.
struct CountingView : InstrumentView {
    using InstrumentView::InstrumentView;
    int paints = 0;

  protected:
    void paintEvent(QPaintEvent* event) override {
        ++paints;
        InstrumentView::paintEvent(event);
    }
};

/// An HSI of 257 pixels, so that 15 twips are a pixel.
class InstrumentViewTest : public testing::Test {
  protected:
    void SetUp() override {
        hsi.c_HDGbug = 100;
        hsi.c_MouseOBS = 250;
        hsi.feed(294, 110, 270, 270);
        view.resize(257, 257);
        view.show();
        view.activateWindow();
        view.refresh();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        QApplication::processEvents();
    }

    [[nodiscard]] QPoint knob(InstrumentArea area) const {
        return InstrumentAreas::knobCentre(area, view.width()).toPoint();
    }
    void focusFirst() { view.setFocus(Qt::TabFocusReason); }

    PanelInstrument hsi{InstrumentKind::hsi};
    PictureStore pictures{"no such folder"};
    CountingView view{hsi, pictures, englishTable()};
};

TEST_F(InstrumentViewTest, DragOfTheHeadingKnobTurnsTheBugByButtonAndSize) {
    dragRight(view, knob(InstrumentArea::headingBugKnob), 16, Qt::LeftButton); // 40 twips a degree
    EXPECT_EQ(hsi.c_HDGbug, 106);
    view.resize(514, 514);
    dragRight(view, knob(InstrumentArea::headingBugKnob), -100, Qt::RightButton); // 250 a degree
    EXPECT_EQ(hsi.c_HDGbug, 103);
}

TEST_F(InstrumentViewTest, WheelOverTheObsKnobRaisesTheCourse) {
    for (const auto& [delta, course] : {std::pair(oneNotch, 249),
                                        {-oneNotch / 4, 249},
                                        {-oneNotch * 3 / 4, 250},
                                        {3 * oneNotch, 247}}) {
        turnWheel(view, knob(InstrumentArea::obsKnob), delta);
        EXPECT_EQ(hsi.c_MouseOBS, course) << delta;
    }
}

TEST_F(InstrumentViewTest, KeysWalkTheKnobsAndTurnThem) {
    focusFirst();
    EXPECT_EQ(view.focusedArea(), InstrumentArea::obsKnob);
    using enum InstrumentArea;
    // Space is a double click: the bug goes to the heading.
    for (const auto& [key, area, course, bug, channel] :
         {std::tuple(Qt::Key_Up, obsKnob, 249, 100, 1),
          {Qt::Key_Tab, headingBugKnob, 249, 100, 1},
          {Qt::Key_PageDown, headingBugKnob, 249, 90, 1},
          {Qt::Key_Up, headingBugKnob, 249, 91, 1},
          {Qt::Key_Space, headingBugKnob, 249, 90, 1},
          {Qt::Key_Right, selector, 249, 90, 1},
          {Qt::Key_Return, selector, 249, 90, 2},
          {Qt::Key_Left, headingBugKnob, 249, 90, 2}}) {
        QTest::keyClick(&view, key);
        EXPECT_EQ(view.focusedArea(), area) << key;
        EXPECT_EQ(told(hsi.c_MouseOBS, hsi.c_HDGbug, hsi.c_NAVselect), told(course, bug, channel));
    }
}

TEST_F(InstrumentViewTest, FocusPassesOverKnobsThatTheKindLacks) {
    focusFirst();
    for (const auto& [kind, area] : {std::pair(InstrumentKind::dg, InstrumentArea::headingBugKnob),
                                     {InstrumentKind::vor, InstrumentArea::obsKnob}}) {
        hsi.Display = static_cast<std::int16_t>(kind);
        view.refresh();
        EXPECT_EQ(view.focusedArea(), area);
    }
    EXPECT_EQ(view.accessibleName(), "VOR indicator");
    hsi.c_DisableKnobs = 0;
    view.refresh();
    EXPECT_EQ(view.focusedArea(), InstrumentArea::none);
}

TEST_F(InstrumentViewTest, AllThatTheHandDoesRunsUnderTheGuard) {
    int guarded = 0;
    view.guard = [&guarded](const std::function<void()>& /*action*/) { ++guarded; };
    focusFirst();
    dragRight(view, knob(InstrumentArea::headingBugKnob), 16, Qt::LeftButton);
    QTest::mouseDClick(&view, Qt::LeftButton, {}, knob(InstrumentArea::headingBugKnob));
    turnWheel(view, knob(InstrumentArea::obsKnob), oneNotch);
    QTest::keyClick(&view, Qt::Key_Up);
    EXPECT_GE(guarded, 5);
    EXPECT_EQ(hsi.c_HDGbug, 100);
    EXPECT_EQ(hsi.c_MouseOBS, 250);
}

TEST_F(InstrumentViewTest, PaintsAgainOnlyWhenSomethingMoved) {
    const auto paintsAfter = [this](const std::function<void()>& action) {
        view.paints = 0;
        action();
        view.refresh();
        QApplication::processEvents();
        return view.paints;
    };
    EXPECT_EQ(paintsAfter([] {}), 0);
    EXPECT_EQ(paintsAfter([this] { hsi.feed(294, 110, 270, 270); }), 0);
    EXPECT_EQ(paintsAfter([this] { hsi.feed(294, 110, 260, 260); }), 1);
    EXPECT_EQ(paintsAfter([this] { hsi.c_MouseOBS = 200; }), 1) << "its knob has turned";
}

TEST(PictureStoreTest, FindsNamesInAnyCaseWithEitherSlashAndKeepsThemPerSize) {
    const QTemporaryDir folder;
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(folder.filePath("QxrHsi1.PNG")));
    PictureStore pictures(folder.path());
    EXPECT_EQ(pictures.scaled("qxrhsi1.png", {20, 10}).size(), QSize(20, 10));
    QString windowsPath = folder.path() + "/QXRHSI1.png";
    windowsPath.replace('/', '\\');
    EXPECT_FALSE(pictures.scaled(windowsPath, {4, 4}).isNull());
    EXPECT_FALSE(pictures.scaled("elsewhere/qxrhsi1.png", {4, 4}).isNull());
    EXPECT_EQ(pictures.kept(), 3U);
    for (int round = 0; round < 4; ++round) {
        (void)pictures.scaled("qxrhsi1.png", {20, 10});
        pictures.sizesChanged();
    }
    EXPECT_EQ(pictures.kept(), 1U);
}

/// A radio that is switched on and free, with three frequencies.
template <class Face>
void tune(Face& face) {
    face.c_OnOff = 1;
    face.c_LockSettings = 1;
    face.c_NumberOfFreqs = 3;
    face.c_Freq1 = "113.60";
    face.c_Freq2 = "116.25";
    face.c_Freq3 = "109.90";
    face.c_SetFreq = 0;
}

TEST(NavModuleTest, WheelKeysClickAndDragStepTheFrequency) {
    NAVControlFace face;
    tune(face);
    PictureStore pictures("no such folder");
    NavModule module(face, nav1Texts, pictures, englishTable());
    module.resize(225, 104);
    module.grab();
    KnobWidget& knob = module.knob();
    const QPoint middle = knob.rect().center();
    const std::pair<std::function<void()>, int> deeds[] = {
        {[&] { turnWheel(knob, middle, oneNotch); }, 1},
        {[&] { QTest::keyClick(&knob, Qt::Key_Down); }, 0},
        {[&] { QTest::mousePress(&knob, Qt::LeftButton, {}, middle); }, 0},
        {[&] { QTest::mouseRelease(&knob, Qt::LeftButton, {}, middle); }, 1},
        {[&] { QTest::mouseClick(&knob, Qt::RightButton, {}, middle); }, 1},
        {[&] {
             dragRight(knob, {4, middle.y()}, 50, Qt::LeftButton);
         },
         2}, // 750 twips
        {[&] { dragRight(knob, middle, 100, Qt::LeftButton); }, 0},
        {[&] { turnWheel(knob, middle, -oneNotch); }, 2},
        {[&] { face.c_LockSettings = 0; }, 2},
        {[&] { turnWheel(knob, middle, oneNotch); }, 2}};
    for (const auto& [deed, frequency] : deeds) {
        deed();
        EXPECT_EQ(face.c_SetFreq, frequency);
    }
    EXPECT_EQ(knob.valueText(), "109.90");
}

class DmeModuleTest : public testing::Test {
  protected:
    void SetUp() override {
        tune(face);
        module.refresh();
        module.resize(461, 104);
        module.grab();
    }

    DMEControlFace face;
    PictureStore pictures{"no such folder"};
    DmeModule module{face, pictures, englishTable()};
};

TEST_F(DmeModuleTest, ClickOnAWordSelectsTheSource) {
    DmeSelector& selector = module.selector();
    for (const DmeMode mode : {DmeMode::r2, DmeMode::r1, DmeMode::freq}) {
        QTest::mouseClick(&selector, Qt::LeftButton, {}, selector.wordCentre(mode).toPoint());
        EXPECT_EQ(face.mode(), mode);
    }
}

TEST_F(DmeModuleTest, SwitchTurnsByClickWheelAndDrag) {
    KnobWidget& knob = module.selector().knob();
    QTest::mouseClick(&knob, Qt::LeftButton);
    EXPECT_EQ(face.mode(), DmeMode::r1);
    turnWheel(knob, knob.rect().center(), -oneNotch);
    EXPECT_EQ(face.mode(), DmeMode::r2);
    turnWheel(knob, knob.rect().center(), -oneNotch);
    EXPECT_EQ(face.mode(), DmeMode::r2) << "it stops at its end";
    dragRight(knob, knob.rect().center(), -40, Qt::LeftButton);
    EXPECT_EQ(face.mode(), DmeMode::freq);
}

TEST_F(DmeModuleTest, FrequencyStepsOnlyWhileItIsItsOwn) {
    auto& digits = *module.findChild<SteppedDigits*>();
    turnWheel(digits, digits.rect().center(), oneNotch);
    QTest::mouseClick(&digits, Qt::RightButton);
    QTest::mousePress(&digits, Qt::LeftButton);
    EXPECT_EQ(face.c_SetFreq, 1);
    QTest::mouseRelease(&digits, Qt::LeftButton);
    EXPECT_EQ(face.c_SetFreq, 2);
    face.selectMode(DmeMode::r1);
    module.refresh();
    turnWheel(digits, digits.rect().center(), oneNotch);
    EXPECT_EQ(face.c_SetFreq, 2);
}

TEST_F(DmeModuleTest, WholeMilesHaveNoPoint) {
    const auto shownAt = [this](std::int16_t tenths) {
        face.c_DMEnm = tenths;
        module.refresh();
        return module.grab().toImage();
    };
    EXPECT_NE(shownAt(121), shownAt(1219));
}

class AutopilotModuleTest : public testing::Test {
  protected:
    void SetUp() override {
        face.c_OnOff = 1;
        face.c_LockSettings = 1;
        face.c_HDG = 100;
        face.c_ActualHDG = 42;
        face.c_TAS = 120;
        face.c_ALT = 4500;
        module.resize(696, 104);
        module.grab();
    }

    APControlFace face;
    PictureStore pictures{"no such folder"};
    AutopilotModule module{face, pictures, englishTable()};
};

TEST_F(AutopilotModuleTest, KnobsTurnByDragWheelAndKeys) {
    KnobWidget& heading = module.knob(AutopilotKnob::heading);
    dragRight(heading, heading.rect().center(), 20, Qt::LeftButton); // 300 twips at 100 a degree
    EXPECT_EQ(face.c_HDG, 103);
    turnWheel(heading, heading.rect().center(), -oneNotch);
    EXPECT_EQ(face.c_HDG, 102);
    QTest::keyClick(&module.knob(AutopilotKnob::airSpeed), Qt::Key_PageUp);
    EXPECT_EQ(face.c_TAS, 130);
    QTest::keyClick(&module.knob(AutopilotKnob::altitude), Qt::Key_Up);
    EXPECT_EQ(face.c_ALT, 4600);
    EXPECT_EQ(module.knob(AutopilotKnob::altitude).valueText(), "04600 ft");
    QTest::mouseDClick(&heading, Qt::LeftButton); // comes back to the heading flown
    EXPECT_EQ(face.c_HDG, 42);
}

/// Every part of a module lies on it and over no other.
void expectPartsApart(const QWidget& module) {
    const auto parts = module.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* part : parts) {
        EXPECT_TRUE(module.rect().contains(part->geometry()));
        EXPECT_FALSE(part->geometry().isEmpty());
        for (const QWidget* other : parts)
            EXPECT_TRUE(part == other || !part->geometry().intersects(other->geometry()));
    }
}

TEST(ModuleLayoutTest, PartsKeepApartAtEverySizeOfThePanel) {
    NAVControlFace nav;
    DMEControlFace dme;
    APControlFace autopilot;
    tvsmtimer stopwatch;
    PictureStore pictures("no such folder");
    const StringTable& texts = germanTable();
    NavModule navModule(nav, nav1Texts, pictures, texts);
    DmeModule dmeModule(dme, pictures, texts);
    AutopilotModule autopilotModule(autopilot, pictures, texts);
    StopwatchModule stopwatchModule(stopwatch, pictures, texts);
    const std::pair<ModuleFrame*, int> modules[] = {
        {&navModule, 1}, {&dmeModule, 2}, {&autopilotModule, 3}, {&stopwatchModule, 1}};
    for (const int column : {150, 160, 199, 225, 350, 600})
        for (const int height : {72, 90, 104, 127, 170, 400}) {
            SCOPED_TRACE(testing::Message() << column << " x " << height);
            const double scale = column / 225.0 * 0.9;
            if (height < 72 * scale)
                continue;
            for (const auto& [module, columns] : modules) {
                module->setScale(scale);
                module->resize(column * columns + 8 * (columns - 1), height);
                module->grab();
                expectPartsApart(*module);
            }
        }
}

} // namespace

} // namespace tarnel
