// SPDX-License-Identifier: MIT
#include "engine/kernels/SectionPacking.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <span>
#include <vector>

namespace fadeloom {
namespace {

using testing::Each;
using testing::ElementsAre;

EQCoefficients numbered()
{
    EQCoefficients sections;
    for (std::size_t band = 0; band < sections.size(); ++band) {
        const auto number = static_cast<double>(10 * (band + 1));
        sections[band] = {number, number + 1, number + 2, number + 3, number + 4};
    }
    return sections;
}

SectionSet firstBands(int count)
{
    return SectionSet((1U << count) - 1);
}

struct Shape {
    int sections;
    int halves;
    int vectors;

    friend bool operator==(const Shape&, const Shape&) = default;
};

std::vector<Shape> shapes(int sections, int halves)
{
    const auto packing = packed(numbered(), firstBands(sections), halves);
    std::vector<Shape> result;
    for (const auto& pass : std::span(packing.passes).first(static_cast<std::size_t>(packing.passCount)))
        result.push_back({pass.sections, pass.halves, pass.vectors});
    return result;
}

std::span<const double> row(const SectionPass& pass, int vector, int coefficient)
{
    const auto width = static_cast<std::size_t>(2 * pass.halves);
    return std::span(pass.coefficients)
        .subspan(static_cast<std::size_t>(vector * 5 + coefficient) * width, width);
}

TEST(SectionPacking, withoutSectionsThereIsNothingToDo)
{
    EXPECT_THAT(shapes(0, 1), ElementsAre());
    EXPECT_THAT(shapes(0, 2), ElementsAre());
}

TEST(SectionPacking, narrowVectorsTakeUpToFiveSectionsInAPass)
{
    EXPECT_THAT(shapes(1, 1), ElementsAre(Shape{1, 1, 1}));
    EXPECT_THAT(shapes(5, 1), ElementsAre(Shape{5, 1, 5}));
    EXPECT_THAT(shapes(6, 1), ElementsAre(Shape{3, 1, 3}, Shape{3, 1, 3}));
    EXPECT_THAT(shapes(7, 1), ElementsAre(Shape{4, 1, 4}, Shape{3, 1, 3}));
    EXPECT_THAT(shapes(10, 1), ElementsAre(Shape{5, 1, 5}, Shape{5, 1, 5}));
}

TEST(SectionPacking, wideVectorsTakeAllInOnePassAndFewInOneHalf)
{
    EXPECT_THAT(shapes(4, 2), ElementsAre(Shape{4, 1, 4}));
    EXPECT_THAT(shapes(5, 2), ElementsAre(Shape{5, 2, 3}));
    EXPECT_THAT(shapes(8, 2), ElementsAre(Shape{8, 2, 4}));
    EXPECT_THAT(shapes(10, 2), ElementsAre(Shape{10, 2, 5}));
}

TEST(SectionPacking, secondHalfContinuesWhereTheFirstEnds)
{
    const auto packing = packed(numbered(), firstBands(6), 2);
    const auto& pass = packing.passes[0];

    EXPECT_THAT(row(pass, 0, 0), ElementsAre(10, 10, 40, 40)) << "b0 of the first and the fourth section";
    EXPECT_THAT(row(pass, 0, 4), ElementsAre(14, 14, 44, 44));
    EXPECT_THAT(row(pass, 2, 1), ElementsAre(31, 31, 61, 61));
}

TEST(SectionPacking, slotThatIsLeftOverChangesNothing)
{
    const auto packing = packed(numbered(), firstBands(5), 2);
    const auto& pass = packing.passes[0];

    EXPECT_THAT(row(pass, 2, 0), ElementsAre(30, 30, 1, 1));
    EXPECT_THAT(row(pass, 2, 3).subspan(2), Each(0.0));
}

TEST(SectionPacking, bandsAreThoseThatWereChosenInTheirOrder)
{
    SectionSet chosen;
    chosen.set(1).set(2).set(4).set(7).set(8).set(9);

    const auto packing = packed(numbered(), chosen, 1);

    EXPECT_THAT(std::span(packing.passes[0].bands).first(3), ElementsAre(1, 2, 4));
    EXPECT_THAT(std::span(packing.passes[1].bands).first(3), ElementsAre(7, 8, 9));
    EXPECT_THAT(row(packing.passes[1], 1, 0), ElementsAre(90, 90));
}

}  // namespace
}  // namespace fadeloom
