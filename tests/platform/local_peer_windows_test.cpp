#include "platform/local_peer.h"
#include "platform/path_text.h"

#include <gtest/gtest.h>

#include <future>
#include <windows.h>

namespace tarnel {
namespace {

/// What a program that listens as Qt's local server does gets, if it `answers`.
std::string received(HANDLE pipe, bool answers) {
    std::string message;
    char byte = 0;
    DWORD count = 0;
    ConnectNamedPipe(pipe, nullptr);
    EXPECT_TRUE(isOfSameUser(reinterpret_cast<std::intptr_t>(pipe)));
    while (ReadFile(pipe, &byte, 1, &count, nullptr) && byte != '\0')
        message += byte;
    if (answers)
        WriteFile(pipe, "\1", 1, &count, nullptr);
    // Until the other end has gone.
    while (ReadFile(pipe, &byte, 1, &count, nullptr)) {
    }
    CloseHandle(pipe);
    return message;
}

TEST(LocalPeerOnWindows, AMessageIsHandedOverWhereItIsAnswered) {
    const std::string path = "C:/users/Jürgen/tarnel.socket";
    const std::wstring name = pathOf(listeningName(path)).native();
    EXPECT_EQ(listeningSocket(path), -1);
    for (const bool answers : {true, false}) {
        HANDLE pipe = CreateNamedPipeW(name.c_str(), PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE | PIPE_WAIT,
                                       1, 1 << 12, 1 << 12, 0, nullptr);
        ASSERT_NE(pipe, INVALID_HANDLE_VALUE);
        auto told = std::async(std::launch::async, received, pipe, answers);
        const auto end =
            std::chrono::steady_clock::now() + std::chrono::milliseconds(answers ? 10'000 : 100);
        EXPECT_EQ(handOver(path, "a flight.ts", end), answers);
        EXPECT_EQ(told.get(), "a flight.ts");
    }
}

} // namespace
} // namespace tarnel
