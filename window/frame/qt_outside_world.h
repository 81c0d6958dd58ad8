#pragma once

#include "shell/outside_world.h"
#include "strings/string_table.h"
#include "window/frame/file_dialog.h"
#include "window/frame/file_settings.h"

#include <QPointer>
#include <QWidget>

#include <memory>

namespace tarnel {

class HelpWindow;

/// `QtOutsideWorld`: boxes and dialogs over the main window, the clock, and the settings of a file.
class QtOutsideWorld : public OutsideWorld {
  public:
    explicit QtOutsideWorld(const StringTable& table,
                            std::string settingsFile = userSettingsFile());
    ~QtOutsideWorld() override;

    void messageBox(BoxKind kind, const std::string& title, const std::string& text) override;
    bool ask(const std::string& title, const std::string& text) override;
    std::optional<std::string> chooseFile(const FileQuestion& question) override;
    bool openDocument(const std::string& path, int page,
                      const std::function<void()>& notOpened) override;
    bool openInBrowser(const std::string& path, const std::function<void()>& notOpened) override;
    void showHelp(const std::string& path) override;
    std::int64_t secondsNow() override;
    std::int64_t millisecondsNow() override;
    std::string localTime(std::int64_t seconds, const std::string& format) override;
    std::optional<std::uint32_t> clockSeed() override;
    [[nodiscard]] NavFolders navFolders() const override { return usersNavFolders(); }
    SettingsStore& settings() override { return kept; }

    /// The window that boxes belong to; without one they stand alone.
    void setParent(QWidget* window) { parent = window; }

  private:
    [[nodiscard]] QWidget* front() const;
    void keepHelp();

    const StringTable& texts;
    QPointer<QWidget> parent;
    FileSettings kept;
    FileDialog files{kept};
    std::unique_ptr<HelpWindow> help; ///< made when it is first asked for
};

} // namespace tarnel
