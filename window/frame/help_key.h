#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QWidget;

namespace tarnel {

/// `HelpKey`: F1 in the windows and dialogs beside the main window, where its menu does not reach.
class HelpKey : public QObject {
    Q_OBJECT

  public:
    /// `open` is called with the page of what has the keyboard, which may be empty.
    HelpKey(QWidget& mainWindow, std::function<void(const QString& page)> open);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget& main;
    std::function<void(const QString&)> onHelp;
};

} // namespace tarnel
