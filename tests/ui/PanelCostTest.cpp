// SPDX-License-Identifier: MIT
// The work that one step of a slider causes in the panel. Text lookups are counted: whatever is reworded, a row's
// status or the names of presets, looks up its translation.
#include "tests/ui/PanelStory.h"
#include "tests/ui/PanelTest.h"

#include <QSignalSpy>
#include <QTranslator>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace fadeloom {
namespace {

/// Translates nothing, and counts lookups.
class CountingTranslator final : public QTranslator {
public:
    CountingTranslator() { QCoreApplication::installTranslator(this); }
    ~CountingTranslator() override { QCoreApplication::removeTranslator(this); }

    QString translate(const char* context, const char*, const char*, int) const override
    {
        ++counts_[context];
        return {};
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
    /// The number of lookups in a context since the last call.
    int take(const char* context) { return std::exchange(counts_[context], 0); }

private:
    mutable std::map<std::string, int> counts_;
};

class PanelCostTest : public PanelStory {
protected:
    PanelCostTest()
    {
        PanelTest::startApplication();
        open();
        for (int i = 0; i < rowCount; ++i)
            launchPlaying("Player " + std::to_string(i));
    }

    static constexpr int rowCount = 10;
};

TEST_F(PanelCostTest, oneVolumeStepTouchesOneRow)
{
    CountingTranslator texts;
    std::vector<std::unique_ptr<QSignalSpy>> rows;
    for (int i = 0; i < rowCount; ++i)
        rows.push_back(std::make_unique<QSignalSpy>(&row(i), &AppRowModel::changed));
    const QSignalSpy look(&*panel, &PanelModel::appearanceChanged);
    const QSignalSpy outputs(&*panel, &PanelModel::outputsChanged);
    const QSignalSpy banner(&*panel, &PanelModel::bannerChanged);
    const QSignalSpy page(panel->settings(), &SettingsModel::changed);

    row(3).setVolume(0.5);

    EXPECT_EQ(texts.take("StatusLine"), 1);
    for (int i = 0; i < rowCount; ++i)
        EXPECT_EQ(rows.at(static_cast<std::size_t>(i))->count(), i == 3 ? 1 : 0) << i;
    EXPECT_EQ(look.count() + outputs.count() + banner.count() + page.count(), 0);
}

TEST_F(PanelCostTest, menusAreBuiltOnDemand)
{
    CountingTranslator texts;

    row(3).setVolume(0.5);
    row(3).eq()->setGain(2, 6);
    launchPlaying("Player 99");
    plug("television");
    EXPECT_EQ(texts.take("PresetEntries"), 0);
    EXPECT_EQ(texts.take("SettingsEntries"), 0);

    EXPECT_GT(row(3).eq()->actionEntries().size(), 0);
    EXPECT_GT(texts.take("PresetEntries"), 0);
}

TEST_F(PanelCostTest, theGlobalLimitAffectsAllRows)
{
    CountingTranslator texts;

    panel->settings()->chooseVolumeLimit("2");

    EXPECT_EQ(texts.take("StatusLine"), rowCount);
    EXPECT_EQ(row(7).volumeLimit(), 1.5);
}

}  // namespace
}  // namespace fadeloom
