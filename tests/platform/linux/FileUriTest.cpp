// SPDX-License-Identifier: MIT
#include "platform/linux/FileUri.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

TEST(FileUri, isPlainText)
{
    EXPECT_EQ(fileUri("/home/anna/Music/2025-01-02_a~b.wav"), "file:///home/anna/Music/2025-01-02_a~b.wav");
    EXPECT_EQ(fileUri("/a b%20/c?d#e&f\\g\"h'i:j;k"), "file:///a%20b%2520/c%3Fd%23e%26f%5Cg%22h%27i%3Aj%3Bk");
    EXPECT_EQ(fileUri("/ż/\xFF\x01\n\x7F"), "file:///%C5%BC/%FF%01%0A%7F");
    EXPECT_EQ(fileUri("/"), "file:///");
}

}  // namespace
}  // namespace fadeloom
