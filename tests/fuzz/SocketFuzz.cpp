// SPDX-License-Identifier: MIT
// Arbitrary bytes over the instance's socket, in two parts: commands arrive as they were sent, each gets one line of
// reply, and the next client is served.
#include "platform/linux/InstanceSocket.h"
#include "tests/fuzz/Require.h"
#include "tests/support/TemporaryFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLocalSocket>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

using namespace fadeloom;

namespace {

struct Stage {
    Stage() { socket.listen(); }

    static std::string answerTo(const InstanceCommand& command)
    {
        require(command.line.find('\n') == std::string::npos, "a command is one line");
        require(command.line.size() <= InstanceSocket::longestLine, "a command is no longer than it may be");
        return "ok ok done";
    }
    /// The replies until the peer falls silent.
    std::string exchange(std::string_view first, std::string_view second, bool isEnd) const
    {
        QLocalSocket caller;
        caller.connectToServer(QString::fromStdString((folder.path() / "socket").string()));
        require(caller.waitForConnected(2000), "whoever comes is let in");
        std::string answer;
        for (const auto part : {first, second}) {
            caller.write(part.data(), static_cast<qint64>(part.size()));
            caller.flush();
            turn();
            answer += caller.readAll().toStdString();
        }
        for (QElapsedTimer timer; isEnd && answer.find('\n') == std::string::npos;) {
            if (!timer.isValid())
                timer.start();
            require(timer.elapsed() < 2000, "a command is answered");
            turn();
            answer += caller.readAll().toStdString();
        }
        caller.abort();
        turn();
        return answer;
    }
    static void turn()
    {
        for (int i = 0; i < 4; ++i)
            QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    int argumentCount = 1;
    char name[5] = "fuzz";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{argumentCount, arguments};
    TemporaryFolder folder;
    InstanceSocket socket{folder.path() / "socket", [](InstanceRequest) { return InstanceAnswer::noPanel; },
        answerTo,
        [](const InstanceCommand&, const SendInstanceLine& send) -> std::shared_ptr<void> {
            send("ok ok watch");
            return std::make_shared<int>(0);
        }};
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Stage stage;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto half = size / 2;
    const auto answer = stage.exchange(bytes.substr(0, half), bytes.substr(half), false);
    require(std::ranges::count(answer, '\n') <= std::ranges::count(bytes, '\n') + 1, "a line has one answer");
    require(stage.exchange("Run volu", "me\n", true) == "ok ok done\n", "whoever comes next is served");
    return 0;
}
