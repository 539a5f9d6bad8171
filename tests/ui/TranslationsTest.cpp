// SPDX-License-Identifier: MIT
#include "tests/support/TemporaryFolder.h"
#include "tests/ui/PanelTest.h"
#include "ui/GainText.h"
#include "ui/VolumeText.h"

#include <QFile>
#include <QProcess>
#include <QXmlStreamReader>

namespace fadeloom {
namespace {

class TranslationsTest : public PanelTest, public testing::WithParamInterface<const char*> {
protected:
    /// The texts without a translation, after updating a copy of the table from the sources.
    QStringList untranslated()
    {
        const auto name = QStringLiteral("fadeloom_%1.ts").arg(QLatin1String(GetParam()));
        const auto copy = QString::fromStdString((folder.path() / name.toStdString()).string());
        EXPECT_TRUE(QFile::copy(QStringLiteral(PROJECT_SOURCES "/translations/") + name, copy));
        QProcess update;
        update.start(QStringLiteral(LUPDATE),
            {"-silent", "-no-obsolete", "-locations", "none", PROJECT_SOURCES "/src/ui",
                PROJECT_SOURCES "/src/shell", PROJECT_SOURCES "/src/app", "-ts", copy});
        EXPECT_TRUE(update.waitForFinished() && update.exitCode() == 0);
        return unfinishedIn(copy);
    }
    QStringList unfinishedIn(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        QStringList unfinished;
        QString source;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (xml.name() == QLatin1String("source"))
                source = xml.readElementText();
            if (xml.name() == QLatin1String("translation")) {
                ++count;
                if (xml.attributes().hasAttribute(QLatin1String("type")))
                    unfinished += source;
            }
        }
        return unfinished;
    }

    TemporaryFolder folder;
    int count = 0;
};

TEST_P(TranslationsTest, everyTextIsTranslated)
{
    EXPECT_EQ(untranslated().join("\n"), "");
    EXPECT_GT(count, 100);
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslationsTest, testing::Values("en", "pl"));

/// The texts of a context, in their order.
QStringList sourcesOf(const QString& context, const QString& table)
{
    QFile file(QStringLiteral(PROJECT_SOURCES "/translations/") + table);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QString current;
    QStringList sources;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            current = xml.readElementText();
        else if (xml.name() == QLatin1String("source") && current == context)
            sources += xml.readElementText();
    }
    return sources;
}

TEST(PlatformTextsTest, macOSHasAWordingForEachThatLinuxHas)
{
    const auto wanted = sourcesOf(QStringLiteral("PlatformTexts"), QStringLiteral("fadeloom_en.ts"));

    EXPECT_GT(wanted.size(), 5);
    EXPECT_EQ(sourcesOf(QStringLiteral("PlatformTexts"), QStringLiteral("macos_en.ts")), wanted);
    EXPECT_EQ(sourcesOf(QStringLiteral("PlatformTexts"), QStringLiteral("macos_pl.ts")), wanted);
}

class PluralTest : public PanelTest { };

TEST_F(PluralTest, englishKnowsOneAndMany)
{
    const auto english = speaking("en");

    EXPECT_EQ(spokenDecibels(1), "1 decibel");
    EXPECT_EQ(spokenDecibels(3), "3 decibels");
    EXPECT_EQ(spokenPercent(0.85), "85 percent");
}

TEST_F(PluralTest, polishKnowsThreeForms)
{
    const auto polish = speaking("pl");

    EXPECT_EQ(spokenDecibels(1), "1 decybel");
    EXPECT_EQ(spokenDecibels(3), "3 decybele");
    EXPECT_EQ(spokenDecibels(7), "7 decybeli");
}

}  // namespace
}  // namespace fadeloom
