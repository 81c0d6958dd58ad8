#pragma once

#include <QComboBox>
#include <QElapsedTimer>

#include <functional>

namespace tarnel {

/// `QuizList`: a list of answers. Arrows and typed letters or digits only go from entry to entry;
/// Enter, or a click in the opened list, confirms one. The wheel does nothing to it.
class QuizList : public QComboBox {
    Q_OBJECT

  public:
    explicit QuizList(QWidget* parent);

    std::function<void(int)> onBrowse;  ///< called with the entry that was gone to
    std::function<void(int)> onConfirm; ///< called with the entry that was confirmed

    /// Shows these entries, if they are others than before.
    void setEntries(const QStringList& entries);
    /// Takes room for a sign before each entry and this word behind it: it may be told so, in the
    /// list's place.
    void leaveRoomBehind(const QString& word);
    /// Types a character: goes to the first entry that starts with what was typed in quick
    /// succession. A digit that starts none counts the entries.
    void type(const QString& character);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void initStyleOption(QStyleOptionComboBox* option) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    bool step(int key);
    void browse(int entry);
    void confirm();

    QStringList shown;
    QString wordBehind;
    QString typed;
    QElapsedTimer sinceTyped;
};

} // namespace tarnel
