#pragma once

#include "strings/string_table.h"

#include <QWidget>

#include <functional>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tarnel {

class HelpView;

/// `HelpWindow`: the help in a window of its own: one page at a time, the way back and forward, a
/// search and larger letters. It stays as it is left until it is asked for again.
class HelpWindow : public QWidget {
    Q_OBJECT

  public:
    explicit HelpWindow(const StringTable& table);

    /// Brings the window to the front, with the page in the file at `path`. A page that is open
    /// already stays where it was read.
    void open(const QString& path);

    /// How many times as large the letters are as at first.
    [[nodiscard]] double zoom() const;
    void setZoom(double times);

    /// Called when the window closes.
    std::function<void()> onClose;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    QPushButton* button(QBoxLayout& line, const char* name, Text caption, Text tip,
                        const QList<QKeySequence>& keys, const std::function<void()>& action);
    void makeWay(QBoxLayout& line);
    void makeSearch(QBoxLayout& line);
    void makeSize(QBoxLayout& line);
    void belongTo(QWidget* dialog);
    void search(bool backwards);
    void showContents();
    void openInBrowser();

    const StringTable& texts;
    HelpView* view = nullptr;
    QLineEdit* words = nullptr;
    QLabel* verdict = nullptr;
};

} // namespace tarnel
