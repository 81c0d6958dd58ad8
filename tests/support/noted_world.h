#pragma once

#include "shell/outside_world.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarnel {

/// An outside world that writes down what the trainer wants of it.
struct NotedWorld : OutsideWorld {
    std::vector<std::string> boxes;
    std::vector<std::string> asked;
    std::vector<FileQuestion> questions;
    std::vector<std::string> opened; ///< documents and pages

    bool answer = true;                   ///< to each question
    std::optional<std::string> chosen;    ///< for each file that is asked for
    bool hasReader = true;                ///< of documents
    std::function<void()> behind = [] {}; ///< looks at what stands behind a box
    NavFolders navigation;                ///< where navigation data may lie
    std::int64_t seconds = 1767225600;    ///< a clock that goes on at each look

    void messageBox(BoxKind, const std::string& title, const std::string& text) override {
        boxes.push_back(title + ": " + text);
        behind();
    }
    bool ask(const std::string&, const std::string& text) override {
        asked.push_back(text);
        return answer;
    }
    std::optional<std::string> chooseFile(const FileQuestion& question) override {
        questions.push_back(question);
        return chosen;
    }
    bool openDocument(const std::string& path, int page,
                      const std::function<void()>& /*notOpened*/) override {
        opened.push_back(path.substr(path.rfind('/') + 1) + " " + std::to_string(page));
        return hasReader;
    }
    [[nodiscard]] NavFolders navFolders() const override { return navigation; }
    bool openInBrowser(const std::string& path, const std::function<void()>&) override {
        opened.push_back(path.substr(path.find("Hilfe")) + " in the browser");
        return hasReader;
    }
    void showHelp(const std::string& path) override {
        opened.push_back(path.substr(path.find("Hilfe")) + " as help");
    }
    std::int64_t secondsNow() override { return ++seconds; }
};

} // namespace tarnel
