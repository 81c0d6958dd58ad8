#include "window/widgets/style_sheet.h"

#include "look/panel_look.h"

#include <QApplication>
#include <QHash>
#include <QRegularExpression>

#include <cmath>

namespace tarnel {

namespace {

/// Fields to write in have the palette's ink, as a colour given here would thin out their hints.
/// Colours and the desktop's typeface stand as $names, lengths in pixels at scale 1 as {n}.
constexpr const char* sheet = R"(
* { font-family: "$family", "Liberation Sans", sans-serif; font-size: {13}px; }
QMainWindow, QWidget#Desk { background: $desktop; }
QMenuBar { background: $bar; color: $ink; padding: {2}px {8}px; border-bottom: 1px solid $line; }
QMenuBar::item { padding: {5}px {10}px; border-radius: {4}px; background: transparent; }
QMenuBar::item:selected:enabled { background: $focusTint; }
QMenuBar::item:disabled { color: $disabledInk; }
QMenu { background: $card; color: $ink; border: 1px solid $line; padding: {4}px; }
QMenu::item { padding: {5}px {26}px {4}px {22}px; border-radius: {3}px; }
QMenu::item:selected:enabled { background: $accent; color: $onAccent; }
QMenu::item:disabled { color: $disabledInk; }
QMenu::separator { height: 1px; background: $hairline; margin: {4}px {6}px; }
QToolTip { background: $card; color: $ink; border: 1px solid $line; padding: {3}px; }

QLabel { color: $ink; background: transparent; }
QLabel[secondary="true"] { color: $secondaryInk; font-size: {12}px; }
QLabel:disabled { color: $disabledInk; }
QLabel[readout="true"] { font-size: {13}px; font-weight: bold; }
QLabel[comment="true"] { font-size: {15}px; }
QScrollArea, QScrollArea > QWidget > QStackedWidget { background: transparent; }
QScrollArea#Frame3 { background: transparent; border: 1px solid transparent; border-radius: {3}px; }
QScrollArea#Frame3:focus { border-color: $accent; }
QCheckBox { font-size: {12}px; }

QWidget#StationFirst { border-left: {2}px solid $first; }
QWidget#StationSecond { border-left: {2}px solid $second; }
QWidget#StationLocalizer { border-left: {2}px solid $localizer; }
QLabel#NameFirst { color: $first; }
QLabel#NameSecond { color: $second; }
QLabel#NameLocalizer { color: $localizer; }

QPushButton { background: $field; color: $ink; border: 1px solid $line; border-radius: {5}px;
  padding: 0 {10}px; min-height: {24}px; max-height: {24}px; font-size: {12}px; }
QPushButton { outline: none; }
QPushButton:hover { border-color: $accent; }
QPushButton:pressed { background: $pressed; }
QPushButton:focus { border: 2px solid $accent; padding: 0 {9}px; }
QPushButton:disabled { background: $card; color: $disabledInk; border-color: $hairline; }
QPushButton[primary="true"] { background: $accent; color: $onAccent; border: 1px solid $accentPressed;
  font-weight: bold; font-size: {13}px; min-width: {96}px; min-height: {26}px; max-height: {26}px; }
QPushButton[primary="true"]:hover { background: $accentUnderMouse; }
QPushButton[primary="true"]:pressed { background: $accentPressed; }
QPushButton[primary="true"]:focus { border: 2px solid $ink; }
QPushButton[primary="true"]:disabled { background: $card; color: $disabledInk;
  border-color: $line; }
QPushButton[segment] { background: $desktop; border-radius: 0; border-left-width: 0;
  padding: 0 {4}px; }
QPushButton[segment]:hover { background: $field; }
QPushButton[segment="first"] { border-left-width: 1px; border-top-left-radius: {5}px;
  border-bottom-left-radius: {5}px; }
QPushButton[segment="last"] { border-top-right-radius: {5}px; border-bottom-right-radius: {5}px; }
QPushButton[segment]:checked { background: $field; color: $accent; font-weight: bold;
  border: {2}px solid $accent; border-radius: {5}px; padding: 0 {3}px; }
QPushButton[segment]:checked:focus { background: $tint; }
QPushButton[segment]:focus:!checked { border: 1px solid $accent; color: $accent; }
QPushButton[segment]:disabled { background: $card; color: $disabledInk; border-color: $line; }
QPushButton[segment]:checked:disabled { background: $card; color: $secondaryInk;
  border-color: $line; }

QTabBar { background: transparent; border: none; font-size: {12}px; }
QTabBar::tab { background: transparent; color: $ink; border: none;
  border-bottom: {2}px solid transparent; }
QTabBar::tab:hover { color: $accent; }
QTabBar::tab:selected { color: $accent; font-weight: bold; border-bottom-color: $accent; }
QTabBar::tab:disabled { color: $disabledInk; border-bottom-color: transparent; }
QTabBar::tab:focus { background: $focusTint; border-top-left-radius: {4}px;
  border-top-right-radius: {4}px; }

QSpinBox { font-size: {12}px; min-height: {24}px; }
QSpinBox:disabled { color: $disabledInk; }
QLineEdit { background: $field; border: 1px solid $line;
  border-radius: {5}px; padding: 0 {6}px; min-height: {24}px; max-height: {24}px;
  font-size: {12}px; selection-background-color: $accent; selection-color: $onAccent; }
QLineEdit:hover { border-color: $accent; }
QLineEdit:focus { border: 2px solid $accent; padding: 0 {5}px; }
QLineEdit:disabled { background: $card; border-color: $hairline; }

QToolButton { background: $field; color: $ink; border: 1px solid $line; border-radius: {5}px;
  min-width: {26}px; min-height: {24}px; max-height: {24}px; }
QToolButton:hover:enabled { border-color: $accent; }
QToolButton:pressed { background: $pressed; }
QToolButton:focus { border: 2px solid $accent; }
QToolButton:checked { background: $tint; border-color: $accent; }
QToolButton:disabled { background: $card; border-color: $hairline; }

QSlider { min-height: {24}px; max-height: {24}px; background: transparent; }
QSlider::groove:horizontal { height: {4}px; border-radius: {2}px; background: $line; }
QSlider::sub-page:horizontal { background: $accent; border-radius: {2}px; }
QSlider::handle:horizontal { width: {13}px; height: {13}px; margin: -{5}px 0;
  border-radius: {7}px; background: $field; border: 1px solid $secondaryInk; }
QSlider::add-page:horizontal { background: transparent; }
QSlider::sub-page:horizontal:disabled { background: transparent; }
QSlider::handle:horizontal:disabled { background: $card; border-color: $line; }

QComboBox[dark="true"] QAbstractItemView { background: $moduleBottom; color: $caption;
  border: 1px solid $bezelTop; selection-background-color: $panelChosen;
  selection-color: $caption; outline: none; }

QToolButton[dark="true"] { background: $moduleTop; border: 1px solid $bezelTop;
  min-width: {22}px; max-width: {22}px; min-height: {22}px; max-height: {22}px; }
QToolButton[dark="true"]:hover { border-color: $unit; }
QToolButton[dark="true"]:pressed { background: $panelBottom; }
QToolButton[dark="true"]:checked { background: $panelChosen; border-color: $panelFocus; }
QToolButton[dark="true"]:focus { border: 2px solid $panelFocus; }
QToolButton[dark="true"]:disabled { background: $panelBottom; border-color: $moduleTop; }

QLabel[quizTitle="true"] { font-size: {15}px; font-weight: bold; }
QLabel[quizTask="true"] { font-weight: bold; }
QLabel[notice="true"] { color: $wrong; }
QLabel[shut="true"] { color: $disabledInk; }
QPushButton[quiz="true"] { min-height: {26}px; max-height: {26}px; min-width: {56}px; }
QPushButton[choice="true"] { min-height: {28}px; max-height: {28}px; font-size: {13}px; }
QPushButton[choice="true"]:focus { background: $focusTint; }
QLineEdit[quiz="true"] { min-height: {28}px; max-height: {28}px; min-width: {38}px;
  max-width: {38}px; font-size: {13}px; }
QLabel[unit="true"] { min-width: {22}px; }
QFrame[hairline="true"] { background: $hairline; border: none; min-height: 1px; max-height: 1px; }
QComboBox[quiz="true"] QAbstractItemView { background: $field; color: $ink; border: 1px solid $line;
  selection-background-color: $accent; selection-color: $onAccent; outline: none; }

QLabel[strong="true"] { font-weight: bold; }
QLabel[figure="true"] { font-size: {22}px; font-weight: bold; }
QLabel[change="true"] { font-size: {12}px; font-weight: bold; color: $exceeded; }
QLabel[change="true"][better="true"] { color: $right; }
QPushButton[link="true"] { background: transparent; border: 1px solid transparent; color: $accent;
  font-size: {13}px; padding: 0 {5}px; min-height: {24}px; max-height: {24}px; }
QPushButton[link="true"]:hover { border-color: $accent; }
QPushButton[link="true"]:focus { border: 2px solid $accent; padding: 0 {4}px; }
QPushButton[link="true"]:disabled { color: $disabledInk; }
QTableWidget { background: transparent; color: $ink; outline: none;
  selection-background-color: $tint; selection-color: $ink; }
QTableWidget#FlightList:focus { border: 1px solid $accent; }
QTableWidget#NavHits { background: $field; border: 1px solid $line; border-radius: {5}px; }
QTableWidget#NavHits:focus { border-color: $accent; }
QTableWidget#NavHits::item { padding: 0 {6}px; }
QHeaderView, QHeaderView::section { background: transparent; border: none; }
QHeaderView::section { color: $ink; padding: {4}px {8}px; font-size: {12}px; }
QLabel[moduleCaption="true"] { color: $caption; font-size: {12}px; font-weight: bold; }
QListView#DebriefFindings { background: transparent; outline: none; }
QPushButton[toggle="true"]:checked { background: $tint; color: $accent; border-color: $accent; }

QWidget#StatusPanels { background: $bar; border-top: 1px solid $line; }
QWidget#StatusPanels QLabel { font-size: {12}px; padding-left: {10}px; }
QWidget#StatusPanels QLabel#StatusNotice { background: $bar; font-weight: bold; }
QWidget#StatusPanels QLabel#FlightTime { padding-right: {10}px; }
)";

using look::Colours;

/// Those that follow the desktop.
QColor Colours::*colourNamed(QStringView name) {
    static const QHash<QStringView, QColor Colours::*> byName = {
        {u"desktop", &Colours::desktop},
        {u"bar", &Colours::bars},
        {u"card", &Colours::card},
        {u"field", &Colours::field},
        {u"pressed", &Colours::pressed},
        {u"tint", &Colours::tint},
        {u"focusTint", &Colours::focusTint},
        {u"line", &Colours::line},
        {u"hairline", &Colours::hairline},
        {u"ink", &Colours::ink},
        {u"secondaryInk", &Colours::secondaryInk},
        {u"disabledInk", &Colours::disabledInk},
        {u"accent", &Colours::accent},
        {u"onAccent", &Colours::onAccent},
        {u"accentUnderMouse", &Colours::accentUnderMouse},
        {u"accentPressed", &Colours::accentPressed},
        {u"right", &Colours::right},
        {u"wrong", &Colours::wrong},
        {u"exceeded", &Colours::exceeded},
        {u"first", &Colours::first},
        {u"second", &Colours::second},
        {u"localizer", &Colours::localizer},
    };
    return byName.value(name);
}

/// Those of the dark panel.
QColor panelColour(QStringView name) {
    static const QHash<QStringView, QColor> byName = {
        {u"unit", look::unit},
        {u"moduleTop", look::moduleTop},
        {u"moduleBottom", look::moduleBottom},
        {u"bezelTop", look::bezelTop.lighter(125)},
        {u"panelBottom", look::panelBottom},
        {u"caption", look::caption},
        {u"panelChosen", look::panelChosen},
        {u"panelFocus", look::panelAccent},
    };
    return byName.value(name);
}

QString valueOf(QStringView name) {
    if (name == u"family")
        return QApplication::font().family();
    const auto own = colourNamed(name);
    return (own ? look::colours().*own : panelColour(name)).name();
}

} // namespace

QString sheetFor(double scale) {
    static const QRegularExpression token(QStringLiteral(R"(\$(\w+)|\{(\d+)\})"));
    const QString source = QString::fromLatin1(sheet);
    QString result;
    qsizetype last = 0;
    for (const auto& match : token.globalMatch(source)) {
        result += source.mid(last, match.capturedStart() - last);
        last = match.capturedEnd();
        if (match.hasCaptured(1))
            result += valueOf(match.capturedView(1));
        else
            result += QString::number(std::lround(match.captured(2).toDouble() * scale));
    }
    return result + source.mid(last);
}

} // namespace tarnel
