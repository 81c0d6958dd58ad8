#include "window/dials/floating_gyro.h"
#include "window/dials/instrument_view.h"
#include "window/quiz/quiz_panel.h"
#include "window/student_fixture.h"

#include <QAccessible>
#include <QRegularExpression>

#include <map>

namespace tarnel {
namespace {

/// Looks for the answers of open questions in everything that the window says.
class Secrets : public Student {
  protected:
    void SetUp() override { QAccessible::setActive(true); }
    void TearDown() override { QAccessible::setActive(false); }

    static QStringList saidBy(QAccessibleInterface& part) {
        QStringList said;
        for (const auto kind :
             {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help})
            said << part.text(kind);
        if (auto* number = part.valueInterface()) // with its unit
            said << number->currentValue().toString() + ' ' + said[1].section(' ', -1);
        if (auto* text = part.textInterface())
            said << text->text(0, text->characterCount());
        return said;
    }
    /// What the question itself says and offers, the dials that it wants to be read, and what
    /// tells nothing of a place: the speed and a comment's number.
    [[nodiscard]] bool belongsToQuestion(const QWidget& widget) const {
        const auto* quiz = window->findChild<QuizPanel*>();
        const ExercisePanel& panel = *form->QAform1.activePanel();
        const bool ofRows = widget.objectName() != nameOf(panel.statistic);
        return qobject_cast<const InstrumentView*>(&widget) || &widget == quiz ||
               (quiz->isAncestorOf(&widget) && ofRows) ||
               widget.objectName() == nameOf(form->speedReadout) ||
               widget.objectName() == nameOf(form->commentPanel.number);
    }
    /// The texts that are seen or can be heard, by the widget that has them: a screen reader finds
    /// also what is hidden.
    std::map<QString, QString> said() {
        std::map<QString, QString> all;
        for (QWidget* root :
             std::initializer_list<QWidget*>{window.get(), window->findChild<additional_DG*>()})
            for (QWidget* widget : root->findChildren<QWidget*>())
                if (widget->window() == root && !belongsToQuestion(*widget))
                    collect(*QAccessible::queryAccessibleInterface(widget), all);
        return all;
    }
    /// With the parts that are no widgets.
    static void collect(QAccessibleInterface& from, std::map<QString, QString>& all) {
        all[saidBy(from).join('\n')] = from.object()->objectName();
        for (int i = 0; i < from.childCount(); ++i)
            if (!from.child(i)->object())
                all[saidBy(*from.child(i)).join('\n')] = from.object()->objectName();
    }
    /// The numbers of an answer. A nought or a single digit tells nothing.
    static QStringList numbersOf(const std::string& text) {
        static const QRegularExpression number(QStringLiteral(R"(\d[\d.]+)"));
        QStringList numbers;
        for (const auto& match : number.globalMatch(QString::fromStdString(text)))
            numbers << match.captured();
        return numbers;
    }
    /// Whether the number stands in the text, other than as a speed.
    static bool tells(const QString& text, const QString& number) {
        return text.contains(QRegularExpression(
            QStringLiteral("(?<![\\d.])%1(?![\\d.]| kt)").arg(QRegularExpression::escape(number))));
    }
    /// Where no position is asked for, the question gives the heading itself; and its wind always.
    [[nodiscard]] bool isGiven(const QString& number) const {
        return tells(QString::fromStdString(form->QAform1.activePanel()->wind.text()), number) ||
               (!asksForPosition(form->QAform1.c_QAtype) &&
                number.toDouble() == form->APControlFace1.c_HDG);
    }

    void expectNothingTold(const std::map<QString, QString>& everything,
                           const ExercisePanel& panel) {
        for (const auto& row : panel.rows)
            for (const QString& number : numbersOf(row->answer.text()))
                for (const auto& [text, widget] : everything)
                    EXPECT_FALSE(tells(text, number) && !isGiven(number))
                        << panel.frame.text() << ": " << qPrintable(number) << " is told by "
                        << qPrintable(widget) << ": " << qPrintable(text);
    }

    void askAllOf(CommandButton& item) {
        item.click();
        settle();
        ExercisePanel& panel = *form->QAform1.activePanel();
        panel.randomBox.set(0);
        panel.nextButton.click();
        settle();
        const int count = panel.place().count;
        for (int question = 0; question < count; ++question) {
            const auto everything = said();
            panel.solutionButton.click();
            expectNothingTold(everything, panel);
            panel.nextButton.click();
            settle();
        }
        panel.cancelButton.click();
        settle();
    }
};

TEST_F(Secrets, NoTextOfTheWindowTellsAnAnswer) {
    for (const StringTable* texts : {&germanTable(), &englishTable()}) {
        open(*texts);
        form->setFloatingGyroOpen(true);
        for (const auto& item : form->exerciseMenu.exercises)
            askAllOf(*item);
        window.reset();
    }
}

} // namespace
} // namespace tarnel
