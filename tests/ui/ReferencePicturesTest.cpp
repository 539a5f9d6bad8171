// SPDX-License-Identifier: MIT
// Every screen compared with a picture that was inspected.
//
// The pictures in tests/ui/references have one pixel per point and 32 shades of each colour, which keeps the files
// small. Squares of 4 points are compared by their mean colours: another version of Qt or of the font engine changes
// them slightly, a different word, line or icon significantly. Differing pictures are written to
// build/results/pictures. With FADELOOM_NEW_REFERENCES=1 the rendered pictures become the references.
#include "tests/ui/PanelTest.h"
#include "tests/ui/PictureScenes.h"

#include <QDir>
#include <QImage>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>

namespace fadeloom {
namespace {

constexpr int square = 4;  // Points.
constexpr int tolerance = 16;  // Of 255, for each colour of a square.
constexpr int squaresThatMayDiffer = 4;

struct Look {
    Theme theme;
    const char* language;
    double scale;

    /// With one pixel per point everything is the same except the sharpness of edges: a few scenes cover that.
    [[nodiscard]] bool shows(const QString& scene) const
    {
        return scale != 1 || scene == QLatin1String("mixer") || scene == QLatin1String("eq")
            || scene == QLatin1String("settings");
    }
    [[nodiscard]] QString suffix() const
    {
        return QStringLiteral("-%1-%2%3")
            .arg(QLatin1String(theme == Theme::dark ? "dark" : "light"), QLatin1String(language),
                scale == 1 ? QStringLiteral("-1x") : QString());
    }
};

QImage atOnePixelAPoint(const QImage& drawn, double scale)
{
    auto plain = drawn.convertToFormat(QImage::Format_ARGB32);
    plain.setDevicePixelRatio(1);
    return scale == 1 ? plain
                      : plain.scaled(plain.size() / scale, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage inFewShades(QImage image)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb colour = image.pixel(x, y);
            const auto shade = [](int value) { return (value & 0xF8) | (value >> 5); };
            image.setPixel(x, y,
                qRgba(
                    shade(qRed(colour)), shade(qGreen(colour)), shade(qBlue(colour)), shade(qAlpha(colour))));
        }
    return image;
}

std::array<int, 4> meanOf(const QImage& image, int left, int top)
{
    std::array<int, 4> sums{};
    int count = 0;
    for (int y = top; y < std::min(top + square, image.height()); ++y)
        for (int x = left; x < std::min(left + square, image.width()); ++x, ++count) {
            const QRgb colour = image.pixel(x, y);
            const int alpha = qAlpha(colour);
            sums[0] += qRed(colour) * alpha / 255;
            sums[1] += qGreen(colour) * alpha / 255;
            sums[2] += qBlue(colour) * alpha / 255;
            sums[3] += alpha;
        }
    for (int& sum : sums)
        sum /= std::max(count, 1);
    return sums;
}

/// The number of differing squares; all of them if the sizes differ.
int difference(const QImage& one, const QImage& other)
{
    int count = 0;
    for (int top = 0; top < one.height(); top += square)
        for (int left = 0; left < one.width(); left += square) {
            const auto mine = meanOf(one, left, top);
            const auto theirs = meanOf(other, left, top);
            const bool isSame = one.size() == other.size()
                && std::ranges::equal(
                    mine, theirs, [](int a, int b) { return std::abs(a - b) <= tolerance; });
            count += isSame ? 0 : 1;
        }
    return count;
}

class ReferencePictures : public PanelTest, public testing::WithParamInterface<Look> { };

TEST_P(ReferencePictures, areWhatIsDrawn)
{
    const Look look = GetParam();
    const auto translator = speaking(look.language);
    const QDir references(QStringLiteral(PROJECT_SOURCES "/tests/ui/references"));
    const QDir results(QStringLiteral(PROJECT_SOURCES "/build/results/pictures"));
    results.mkpath(QStringLiteral("."));
    const bool isNew = std::getenv("FADELOOM_NEW_REFERENCES") != nullptr;
    for (const auto& scene : pictureScenes()) {
        if (!look.shows(scene.name))
            continue;
        const auto name = scene.name + look.suffix() + QStringLiteral(".png");
        const auto drawn = atOnePixelAPoint(scene.draw(look.theme, look.scale), look.scale);
        ASSERT_FALSE(drawn.isNull()) << name.toStdString();
        if (isNew)
            inFewShades(drawn).save(references.filePath(name));
        const QImage reference(references.filePath(name));

        const int squares = difference(drawn, reference.convertToFormat(QImage::Format_ARGB32));

        EXPECT_EQ(drawn.size(), reference.size()) << name.toStdString();
        EXPECT_LE(squares, squaresThatMayDiffer) << name.toStdString();
        if (squares > squaresThatMayDiffer)
            drawn.save(results.filePath(name));
    }
}

INSTANTIATE_TEST_SUITE_P(Looks, ReferencePictures,
    testing::Values(Look{Theme::dark, "en", 2}, Look{Theme::light, "en", 2}, Look{Theme::dark, "pl", 2},
        Look{Theme::light, "pl", 2}, Look{Theme::dark, "en", 1}, Look{Theme::light, "pl", 1}));

}  // namespace
}  // namespace fadeloom
