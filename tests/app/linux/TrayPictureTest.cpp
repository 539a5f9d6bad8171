// SPDX-License-Identifier: MIT
#include "app/linux/TrayPicture.h"

#include "tests/platform/qtdesktop/OffscreenApplication.h"
#include "tests/support/TemporaryFolder.h"
#include "ui/LegibleColor.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>

namespace fadeloom {
namespace {

/// The fraction of the picture that contrasts with a bar of this colour.
double visiblePart(const QIcon& icon, int size, const QColor& bar)
{
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(bar);
    QPainter painter(&image);
    painter.drawPixmap(0, 0, icon.pixmap(QSize(size, size), 1.0));
    painter.end();
    constexpr double enoughForShapes = 3;
    int count = 0;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x)
            count += contrast(image.pixelColor(x, y), bar) >= enoughForShapes ? 1 : 0;
    }
    return count / static_cast<double>(size * size);
}

class TrayPictureTest : public testing::Test {
protected:
    OffscreenApplication application;
};

TEST_F(TrayPictureTest, isVisibleOnEveryBarWhateverTheColourScheme)
{
    for (const bool isDark : {true, false}) {
        const auto icon = trayDrawing(isDark);
        for (const int size : {16, 18, 22, 24, 33, 44, 64}) {
            for (const auto& bar :
                {QColor(Qt::black), QColor(Qt::white), QColor(0x2B, 0x30, 0x3B), QColor(0xF6, 0xF5, 0xF4)})
                EXPECT_GT(visiblePart(icon, size, bar), 0.12)
                    << size << " on " << bar.name().toStdString() << (isDark ? ", dark" : ", light");
        }
    }
}

TEST_F(TrayPictureTest, isDrawnInEachSizeThatBarsAskFor)
{
    const auto sizes = trayDrawing(true).availableSizes();

    for (const int size : {16, 22, 24, 32, 33, 44, 48, 64})
        EXPECT_TRUE(sizes.contains(QSize(size, size))) << size;
}

TEST_F(TrayPictureTest, hasANameOnlyWhereBarsColourItAndKnowIt)
{
    const auto before = qgetenv("XDG_DATA_HOME");
    const TemporaryFolder data;
    qputenv("XDG_DATA_HOME", data.path().c_str());
    EXPECT_TRUE(trayPicture(true, QStringLiteral("KDE")).name.isEmpty());

    const auto folder = QString::fromStdString((data.path() / "icons/hicolor/symbolic/apps").string());
    QDir().mkpath(folder);
    QFile file(folder + QStringLiteral("/com.fadeloom.app-symbolic.svg"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();

    EXPECT_EQ(trayPicture(true, QStringLiteral("KDE")).name, QStringLiteral("com.fadeloom.app-symbolic"));
    EXPECT_FALSE(trayPicture(true, QStringLiteral("ubuntu:GNOME")).name.isEmpty());
    EXPECT_TRUE(trayPicture(true, QStringLiteral("sway")).name.isEmpty());
    EXPECT_TRUE(trayPicture(true, QString()).name.isEmpty());
    qputenv("XDG_DATA_HOME", before);
}

}  // namespace
}  // namespace fadeloom
