#pragma once

#include "soak/dice.h"
#include "soak/trail.h"
#include "window/frame/qt_outside_world.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <string>

namespace tarnel {

/// `AnsweringWorld`: the world of the program, but that boxes are answered by chance, files are
/// picked by chance from one folder, nothing is opened outside, and the clock is driven by hand.
class AnsweringWorld : public QtOutsideWorld {
  public:
    struct Given {
        const StringTable& texts;
        Dice& dice;
        Trail& trail;
        std::map<std::string, int>& boxes; ///< told so far, by their texts without numbers
        std::int64_t& milliseconds;        ///< since 1970 UTC
        std::filesystem::path files;       ///< the folder of what can be picked
        std::string settings;              ///< their file
    };
    explicit AnsweringWorld(const Given& what);

    void messageBox(BoxKind kind, const std::string& title, const std::string& text) override;
    bool ask(const std::string& title, const std::string& text) override;
    std::optional<std::string> chooseFile(const FileQuestion& question) override;
    bool openDocument(const std::string& path, int page,
                      const std::function<void()>& notOpened) override;
    bool openInBrowser(const std::string& path, const std::function<void()>& notOpened) override;
    std::int64_t secondsNow() override { return given.milliseconds / 1000; }
    std::int64_t millisecondsNow() override { return given.milliseconds; }
    std::optional<std::uint32_t> clockSeed() override { return given.dice.seed(); }
    [[nodiscard]] NavFolders navFolders() const override;

  private:
    void answerBox();
    [[nodiscard]] std::vector<std::string> filesOf(const FileQuestion& question) const;
    /// As a program that the desktop starts: there, not there, or found to be not there later.
    bool opens(const std::function<void()>& notOpened);

    Given given;
    QObject life; ///< what comes later does not come after it
};

} // namespace tarnel
