// SPDX-License-Identifier: MIT
#include "platform/qt/LineSplitter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using Line = LineSplitter::Line;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(LineSplitter, splitsLinesAcrossChunks)
{
    LineSplitter splitter{100};

    EXPECT_THAT(splitter.feed("on"), IsEmpty());
    EXPECT_THAT(splitter.feed("e\ntwo\nth"), ElementsAre(Line{"one"}, Line{"two"}));
    EXPECT_THAT(splitter.feed("ree\n\n"), ElementsAre(Line{"three"}, Line{""}));
}

TEST(LineSplitter, acceptsBothKindsOfLineEnds)
{
    LineSplitter splitter{100};

    EXPECT_THAT(splitter.feed("one\r"), IsEmpty());
    EXPECT_THAT(splitter.feed("\ntwo\r\n"), ElementsAre(Line{"one"}, Line{"two"}));
}

TEST(LineSplitter, theLastLineNeedsNoLineEnd)
{
    LineSplitter splitter{100};

    EXPECT_THAT(splitter.feed("quit"), IsEmpty());

    EXPECT_THAT(splitter.finish(), ElementsAre(Line{"quit"}));
    EXPECT_THAT(splitter.finish(), IsEmpty());
}

TEST(LineSplitter, aLineOfMaximumLengthIsComplete)
{
    LineSplitter splitter{4};

    EXPECT_THAT(
        splitter.feed("abcd\nabcd\r\nabcde\n"), ElementsAre(Line{"abcd"}, Line{"abcd"}, (Line{"", true})));
}

TEST(LineSplitter, aLineThatIsTooLongIsReportedAndTheNextOneIsComplete)
{
    LineSplitter splitter{8};

    for (int i = 0; i < 1000; ++i)
        EXPECT_THAT(splitter.feed("abcdefghij"), IsEmpty());

    EXPECT_THAT(splitter.feed("\nnext\n"), ElementsAre((Line{"", true}), Line{"next"}));
}

TEST(LineSplitter, aLineThatIsTooLongIsReportedAtTheEnd)
{
    LineSplitter splitter{2};

    EXPECT_THAT(splitter.feed("abcdef"), IsEmpty());

    EXPECT_THAT(splitter.finish(), ElementsAre((Line{"", true})));
}

TEST(LineSplitter, acceptsArbitraryBytes)
{
    LineSplitter splitter{8};

    EXPECT_THAT(splitter.feed({"a\0\xff\n", 4}), ElementsAre(Line{std::string{"a\0\xff", 3}}));
}

}  // namespace
}  // namespace fadeloom
