// SPDX-License-Identifier: MIT
#include "base/TextWriter.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

/// A reader that reads on request; shared with the writer's thread, which may outlive a test.
struct Reader {
    std::mutex door;  // Held while nobody reads.
    std::mutex mutex;
    std::vector<std::string> texts;

    TextWriter::Sink sink(const std::shared_ptr<Reader>& self)
    {
        return [self](std::string_view text) {
            const std::scoped_lock wait(self->door);
            const std::scoped_lock lock(self->mutex);
            self->texts.emplace_back(text);
        };
    }
};

std::string notice(std::uint64_t dropped)
{
    return "dropped " + std::to_string(dropped);
}

class TextWriterTest : public testing::Test {
protected:
    std::shared_ptr<Reader> reader = std::make_shared<Reader>();
    TextWriter writer{reader->sink(reader), &notice};
};

TEST_F(TextWriterTest, writesEverythingInOrder)
{
    writer.write("one");
    writer.write("two");
    writer.write("three");

    EXPECT_TRUE(writer.close());
    EXPECT_THAT(reader->texts, ElementsAre("one", "two", "three"));
}

TEST_F(TextWriterTest, dropsAndCountsOverflow)
{
    const std::string block(TextWriter::room / 4, 'x');
    {
        const std::scoped_lock nobodyReads(reader->door);
        const auto begin = std::chrono::steady_clock::now();
        for (int i = 0; i < 1000; ++i)
            writer.write(block);
        EXPECT_LT(std::chrono::steady_clock::now() - begin, 5s);
    }

    EXPECT_TRUE(writer.close());
    int written = 0;
    int dropped = 0;
    for (const auto& text : reader->texts) {
        if (text == block)
            ++written;
        else
            dropped += std::stoi(text.substr(std::string("dropped ").size()));
    }
    EXPECT_THAT(written, testing::AnyOf(4, 5));  // The first may have been in progress.
    EXPECT_EQ(written + dropped, 1000);
}

TEST_F(TextWriterTest, reportsDroppedTextsInTheirPlace)
{
    {
        const std::scoped_lock nobodyReads(reader->door);
        writer.write("before");
        writer.write(std::string(2 * TextWriter::room, 'x'));
    }
    writer.write("later");

    EXPECT_TRUE(writer.close());
    EXPECT_THAT(reader->texts, ElementsAre("before", "dropped 1", "later"));
}

TEST_F(TextWriterTest, endsEvenIfNobodyEverReads)
{
    reader->door.lock();
    writer.write("one");
    const auto begin = std::chrono::steady_clock::now();

    EXPECT_FALSE(writer.close());

    EXPECT_LT(std::chrono::steady_clock::now() - begin, 5s);
    reader->door.unlock();
}

TEST(WriteToDescriptor, writesAllOfATextAlsoWhereWritingDoesNotWait)
{
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK), 0);
    const std::string text = std::string(200'000, 'x') + "end";
    TextWriter writer(writeToDescriptor(pipe[1]), &notice);

    writer.write(text);

    std::string read;
    std::array<char, 4096> bytes{};
    const auto deadline = std::chrono::steady_clock::now() + 20s;
    while (read.size() < text.size() && std::chrono::steady_clock::now() < deadline) {
        const auto count = ::read(pipe[0], bytes.data(), bytes.size());
        if (count > 0)
            read.append(bytes.data(), static_cast<std::size_t>(count));
    }
    EXPECT_TRUE(writer.close());
    EXPECT_EQ(read, text);
    ::close(pipe[0]);
    ::close(pipe[1]);
}

TEST(WriteToDescriptor, skipsWhatIsRefused)
{
    TextWriter writer(writeToDescriptor(-1), &notice);

    writer.write("nobody");

    EXPECT_TRUE(writer.close());
}

}  // namespace
}  // namespace fadeloom
