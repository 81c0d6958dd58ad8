#pragma once

#include "shell/outside_world.h"
#include "window/frame/file_dialog.h"
#include "window/frame/file_settings.h"

#include <QPointer>
#include <QWidget>

namespace tarnel {

/// `QtOutsideWorld`: boxes and dialogs over the main window, the clock, and the settings of a file.
class QtOutsideWorld : public OutsideWorld {
  public:
    explicit QtOutsideWorld(std::string settingsFile = userSettingsFile())
        : kept(std::move(settingsFile)) {}

    void messageBox(BoxKind kind, const std::string& title, const std::string& text) override;
    bool ask(const std::string& title, const std::string& text) override;
    std::optional<std::string> chooseFile(const FileQuestion& question) override;
    bool openDocument(const std::string& path, int page) override;
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

    QPointer<QWidget> parent;
    FileDialog files;
    FileSettings kept;
};

} // namespace tarnel
