#include "platform/local_peer.h"
#include "window/frame/single_instance.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>

#include <filesystem>
#include <future>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnel {
namespace {

using namespace std::chrono_literals;
using Start = SingleInstance::Start;

class SingleInstanceTest : public testing::Test {
  protected:
    void begin() {
        ASSERT_EQ(first.start(), Start::first);
        first.onOther = [this](const std::string& path) { asked.push_back(path); };
    }
    /// Starts a second one while the first one's events run.
    Start startSecond(const std::string& file, std::chrono::milliseconds patience = 10s) {
        auto second = std::async(std::launch::async,
                                 [&] { return SingleInstance(folder).start(file, patience); });
        while (second.wait_for(0ms) != std::future_status::ready)
            QTest::qWait(1);
        return second.get();
    }
    std::string socketPath() const {
        for (const auto& file : std::filesystem::directory_iterator(folder))
            if (file.path().extension() == ".socket")
                return file.path();
        return {};
    }
    /// A connection on which `bytes` were sent.
    int connectAndSend(const std::string& bytes) const {
        const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address{AF_UNIX, {}};
        socketPath().copy(address.sun_path, sizeof address.sun_path - 1);
        EXPECT_EQ(::connect(socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT),
                  static_cast<ssize_t>(bytes.size()));
        return socket;
    }
    /// Whether the other side hangs up on `socket`, with no answer.
    static bool isHungUp(int socket) {
        char byte = 0;
        return QTest::qWaitFor([&] { return ::recv(socket, &byte, 1, MSG_DONTWAIT) == 0; }, 4000);
    }

    QTemporaryDir temporary;
    const std::string folder = temporary.path().toStdString();
    SingleInstance first{folder};
    std::vector<std::string> asked;
};

TEST_F(SingleInstanceTest, ASecondStartHandsItsFileOver) {
    begin();
    const std::string path = "/home/student/Fl\xFCge/über Köln.ts";
    EXPECT_EQ(startSecond(path), Start::handedOver);
    EXPECT_EQ(startSecond({}), Start::handedOver);
    EXPECT_THAT(asked, testing::ElementsAre(path, ""));
}

TEST_F(SingleInstanceTest, BadMessagesAreHungUpOnAndOthersServed) {
    begin();
    const int tooLong = connectAndSend(std::string(1 << 15, 'x'));
    const int unended = connectAndSend("/home/student/a.ts");
    EXPECT_TRUE(isHungUp(tooLong));
    EXPECT_EQ(startSecond("b.ts"), Start::handedOver);
    EXPECT_TRUE(isHungUp(unended));
    std::vector<int> many;
    for (int i = 0; i < 40; ++i) {
        many.push_back(connectAndSend(""));
        QTest::qWait(1);
    }
    EXPECT_TRUE(isHungUp(many.back()));
    QTest::qWait(1200);
    EXPECT_EQ(startSecond("c.ts"), Start::handedOver);
    EXPECT_THAT(asked, testing::ElementsAre("b.ts", "c.ts"));
    many.insert(many.end(), {tooLong, unended});
    for (const int socket : many)
        ::close(socket);
}

TEST_F(SingleInstanceTest, AFirstOneThatHangsIsToldAndOneThatEndedIsReplaced) {
    {
        SingleInstance hanging(folder);
        ASSERT_EQ(hanging.start(), Start::first);
        EXPECT_EQ(SingleInstance(folder).start("a.ts", 100ms), Start::otherHangs);
    }
    begin();
    EXPECT_EQ(startSecond("b.ts"), Start::handedOver);
}

TEST_F(SingleInstanceTest, AnotherUserIsNotListenedTo) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can be two users";
    begin();
    std::filesystem::permissions(folder, std::filesystem::perms(0777));
    std::filesystem::permissions(socketPath(), std::filesystem::perms(0777));
    const pid_t child = fork();
    if (child == 0) {
        constexpr uid_t someUser = 65534;
        char byte = 0;
        const bool listens = setuid(someUser) != 0 ||
                             handOver(socketPath(), "x", std::chrono::steady_clock::now() + 2s) ||
                             ::recv(connectAndSend(std::string("x\0", 2)), &byte, 1, 0) > 0;
        _exit(listens ? 1 : 0);
    }
    int status = -1;
    EXPECT_TRUE(QTest::qWaitFor([&] { return waitpid(child, &status, WNOHANG) == child; }, 4000));
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(asked.empty());
}

TEST(SingleInstanceFolder, IsTheUsersAlone) {
    const QTemporaryDir temporary;
    const std::string home = temporary.path().toStdString();
    const std::string other = home + "/cache/tarnel-run";
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    const QByteArray cache = qgetenv("XDG_CACHE_HOME");
    qputenv("XDG_RUNTIME_DIR", temporary.path().toUtf8());
    qputenv("XDG_CACHE_HOME", temporary.path().toUtf8() + "/cache");
    EXPECT_EQ(SingleInstance::usersFolder(), home);
    std::filesystem::permissions(home, std::filesystem::perms(0755));
    EXPECT_EQ(SingleInstance::usersFolder(), other);
    std::filesystem::remove(other);
    std::filesystem::create_symlink(home, other);
    EXPECT_EQ(SingleInstance::usersFolder(), "");
    qputenv("XDG_RUNTIME_DIR", runtime);
    qputenv("XDG_CACHE_HOME", cache);
}

} // namespace
} // namespace tarnel
