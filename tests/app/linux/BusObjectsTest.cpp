// SPDX-License-Identifier: MIT
// Names and values on the session bus.
#include "app/linux/BusObjects.h"
#include "app/linux/BusInterface.h"
#include "app/linux/BusWrites.h"

#include <gtest/gtest.h>

#include <limits>

namespace fadeloom {
namespace {

TEST(BusObjects, havePathsOfValidCharacters)
{
    EXPECT_EQ(busElement("firefox"), QStringLiteral("firefox"));
    EXPECT_EQ(busElement("com.example.a_b"), QStringLiteral("com_2eexample_2ea_5fb"));
    EXPECT_EQ(busElement("\xff/"), QStringLiteral("_ff_2f"));
    EXPECT_EQ(busElement(""), QStringLiteral("_"));
    EXPECT_EQ(busPathOfOutput(std::nullopt).path(), QStringLiteral("/"));
}

TEST(BusObjects, acceptAnyNumberForADouble)
{
    const auto d = QStringLiteral("d");
    EXPECT_EQ(busValue(1, d), QVariant(1.0));
    EXPECT_EQ(busValue(0.5, d), QVariant(0.5));
    EXPECT_EQ(busValue(7U, d), QVariant(7.0));
    EXPECT_FALSE(busValue(std::numeric_limits<double>::quiet_NaN(), d).isValid());
    EXPECT_FALSE(busValue(QStringLiteral("1"), d).isValid());
    EXPECT_FALSE(busValue(true, d).isValid());
}

TEST(BusObjects, takeOtherValuesVerbatim)
{
    EXPECT_EQ(busValue(true, QStringLiteral("b")), QVariant(true));
    EXPECT_FALSE(busValue(1, QStringLiteral("b")).isValid());
    EXPECT_TRUE(busValue(QStringLiteral("x"), QStringLiteral("s")).isValid());
    EXPECT_TRUE(busValue(QVariant::fromValue(QDBusObjectPath("/")), QStringLiteral("o")).isValid());
    EXPECT_FALSE(busValue(QStringLiteral("/"), QStringLiteral("o")).isValid());
}

TEST(BusInterface, isReadFromTheFile)
{
    const auto interfaces = readBusInterfaces(QString::fromUtf8(busInterfaceText));

    ASSERT_EQ(interfaces.size(), 3);
    const auto& app = interfaces[bus::appInterface];
    EXPECT_EQ(app.properties[QStringLiteral("Volume")].signature, QStringLiteral("d"));
    EXPECT_TRUE(app.properties[QStringLiteral("Volume")].isWritable);
    EXPECT_FALSE(app.properties[QStringLiteral("Id")].isWritable);
    EXPECT_TRUE(app.properties[QStringLiteral("Id")].isConstant);
    EXPECT_EQ(app.methods[QStringLiteral("ChangeVolume")], QStringLiteral("d"));
    EXPECT_TRUE(app.xml.startsWith(QStringLiteral("<interface"))
        && app.xml.endsWith(QStringLiteral("</interface>\n")));
}

}  // namespace
}  // namespace fadeloom
