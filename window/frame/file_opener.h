#pragma once

#include <QObject>

#include <string>

class QWidget;

namespace tarnel {

class BoxDesk;
class FileDesk;

/// `FileOpener`: opens charts and sessions that come from outside the menus: dropped on the window,
/// named when the program is started, or handed over by a second start. While a box or a dialog is
/// up a file waits.
class FileOpener : public QObject {
    Q_OBJECT

  public:
    /// Takes drops on `window`.
    FileOpener(FileDesk& fileDesk, BoxDesk& boxDesk, QWidget& window);

    /// `path` is absolute, in the bytes that the system has for it.
    void open(const std::string& path);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    FileDesk& files;
    BoxDesk& boxes;
};

} // namespace tarnel
