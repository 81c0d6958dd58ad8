#pragma once

#include "readers/desktop_entry.h"
#include "readers/desktop_folders.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tarnel {

/// A program and its words, as they are handed to the system with no shell between.
struct ProgramCall {
    std::string program;
    std::vector<std::string> words;
};

/// `PdfReader`: a program that shows PDF documents, and how it is told the page.
class PdfReader {
  public:
    /// `page` are the words for a document at a page, where "%p" is the page's number, counted from
    /// 1. Without any the program knows no pages and opens documents at their start.
    PdfReader(DesktopEntry start, std::span<const char* const> page);

    /// The call that opens the document at `path`, a path from the root on; at a page if that is
    /// above 0.
    [[nodiscard]] ProgramCall opening(const std::string& path, int page) const;

  private:
    DesktopEntry entry;
    std::span<const char* const> pageWords;
};

/// `FindPDFReader`: the user's default for PDF documents, else the first of the usual readers that
/// is installed; nothing if there is none.
[[nodiscard]] std::optional<PdfReader> FindPDFReader(const DesktopFolders& folders);

} // namespace tarnel
