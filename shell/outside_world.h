#pragma once

#include "exercises/settings_store.h"
#include "navdata/nav_places.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tarnel {

enum class BoxKind { notice, warning };

/// A file that the user is asked for.
struct FileQuestion {
    bool saves = false;
    std::string title;
    std::string present;   ///< the path now, or a bare name
    std::string folder;    ///< where to look if `present` is in no folder
    std::string filter;    ///< "name (*.ending)", with ";;" between several
    std::string extension; ///< of the first filter, without a dot
};

/// What the trainer needs of the world around it: a window shows boxes, a test writes them down.
class OutsideWorld {
  public:
    virtual ~OutsideWorld() = default;
    /// Shows a box and comes back when the user has closed it.
    virtual void messageBox(BoxKind kind, const std::string& title, const std::string& text) = 0;
    /// Asks a question that is answered by yes or no.
    virtual bool ask(const std::string& /*title*/, const std::string& /*text*/) { return true; }
    /// The path that the user picks; nothing if he changes his mind, or where nobody is to ask.
    virtual std::optional<std::string> chooseFile(const FileQuestion&) { return {}; }
    /// Opens a PDF document in the user's reader, at a page if that is above 0. False if there is
    /// no reader; where that turns out later, `notOpened` is called then.
    virtual bool openDocument(const std::string& /*path*/, int /*page*/,
                              const std::function<void()>& /*notOpened*/) {
        return true;
    }
    /// Opens an HTML page in the user's browser. False, or `notOpened` later, if there is none.
    virtual bool openInBrowser(const std::string& /*path*/,
                               const std::function<void()>& /*notOpened*/) {
        return true;
    }
    /// Shows an HTML page of the help in a window of the program's own.
    virtual void showHelp(const std::string& /*path*/) {}
    /// Seconds since 1970 UTC; 0 in a world without a clock.
    virtual std::int64_t secondsNow() { return 0; }
    /// The same in milliseconds.
    virtual std::int64_t millisecondsNow() { return 1000 * secondsNow(); }
    /// Such a moment on this computer's clock, in a format of "yyyy", "MM", "dd", "HH" and "mm".
    virtual std::string localTime(std::int64_t /*seconds*/, const std::string& /*format*/) {
        return {};
    }
    /// Where draws by chance start from; a world without a clock lets them go on.
    virtual std::optional<std::uint32_t> clockSeed() { return {}; }
    /// Where programs keep their navigation data; nowhere in a world without them.
    [[nodiscard]] virtual NavFolders navFolders() const { return {}; }
    /// Where the statistics are kept; without a place of their own they end with the program.
    virtual SettingsStore& settings() { return memory; }

  private:
    MemorySettingsStore memory;
};

} // namespace tarnel
