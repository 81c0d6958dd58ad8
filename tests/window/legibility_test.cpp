#include "window/comment_card.h"
#include "window/control_strip.h"
#include "window/student_fixture.h"

#include <QLabel>
#include <QStackedWidget>

namespace tarnel {
namespace {

bool isControl(const QWidget& widget) {
    return widget.focusPolicy() != Qt::NoFocus || qobject_cast<const QLabel*>(&widget);
}

/// No visible control leaves its parents or lies over another.
void expectRoomForAll(const QWidget& area, const std::string& where) {
    std::vector<QWidget*> controls;
    for (auto* widget : area.findChildren<QWidget*>())
        if (widget->isVisible() && isControl(*widget) &&
            widget->parentWidget()->focusPolicy() == Qt::NoFocus)
            controls.push_back(widget);
    const auto placeOf = [&](const QWidget* widget) {
        return QRect(widget->mapTo(&area, QPoint()), widget->size());
    };
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const QRect place = placeOf(controls[i]);
        const std::string name = controls[i]->objectName().toStdString() + " " + where;
        for (const QWidget* parent = controls[i]->parentWidget(); parent != &area;
             parent = parent->parentWidget())
            EXPECT_TRUE(placeOf(parent).contains(place)) << name;
        EXPECT_TRUE(area.rect().contains(place)) << name;
        for (std::size_t k = i + 1; k < controls.size(); ++k)
            EXPECT_FALSE(placeOf(controls[k]).intersects(place))
                << name << " and " << controls[k]->objectName().toStdString();
    }
}

void expectTextsInFull(const QWidget& area, const std::string& where) {
    for (auto* button : area.findChildren<QAbstractButton*>()) {
        if (!button->isVisible() || button->text().isEmpty() || button->inherits("QToolButton"))
            continue;
        const int needed = QFontMetrics(button->font()).horizontalAdvance(button->text());
        EXPECT_GE(button->width(), needed) << qPrintable(button->text()) << where;
    }
    for (auto* label : area.findChildren<QLabel*>())
        if (label->isVisible() && !label->wordWrap()) {
            EXPECT_GE(label->width(), label->sizeHint().width())
                << qPrintable(label->text()) << where;
        }
}

// No word is cut off and nothing overlaps, in neither language, on any page, up from the smallest
// window.
TEST_F(Student, ReadsEverythingInFull) {
    for (const StringTable* texts : {&germanTable(), &englishTable()})
        for (const QSize size : {QSize(980, 660), QSize(1024, 768), QSize(1280, 800)})
            for (const bool large : {false, true})
                for (const bool writes : {false, true}) {
                    open(*texts, size);
                    form->PositionInst2(large);
                    if (writes) {
                        click("WriteComments");
                        form->UserControl11.c_TrackDelta = 2;
                    }
                    for (const char* page :
                         {"PageChart", "PageReplay", "PageWind", "PageStations"}) {
                        click(page);
                        const std::string where = std::string(page) + " at " +
                                                  std::to_string(size.width()) +
                                                  (large ? " large" : "");
                        expectTextsInFull(*window, where);
                        expectRoomForAll(*window->findChild<ControlStrip*>(), where);
                        if (writes)
                            expectRoomForAll(*window->findChild<CommentCard*>(), where);
                    }
                }
}

} // namespace
} // namespace tarnel
