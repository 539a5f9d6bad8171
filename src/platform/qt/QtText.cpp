// SPDX-License-Identifier: MIT
#include "platform/qt/QtText.h"

#include <QCollator>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <optional>

namespace fadeloom {

namespace {

QString unicode(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Unicode's full case folding. Qt's folding never expands a letter; its upper case does ("ß" becomes "SS"), but also
/// maps the dotless "ı" to "I", which folding does not.
QString folded(const QString& text)
{
    constexpr QChar dotless = u'ı';
    QStringList pieces = text.toCaseFolded().split(dotless);
    for (QString& piece : pieces)
        piece = piece.toUpper().toCaseFolded();
    return pieces.join(dotless);
}

/// A key that is equal for texts that differ only in case, whether accents are precomposed or not.
QString caseless(std::string_view text)
{
    return folded(unicode(text).normalized(QString::NormalizationForm_D));
}

}  // namespace

/// The collator of the last language: creating one takes thousands of times as long as using it.
class QtText::Order {
public:
    std::weak_ordering compare(const QString& one, const QString& other)
    {
        if (!collator_ || QLocale() != locale_)
            start();
        return collator_->compare(one, other) <=> 0;
    }

private:
    void start()
    {
        locale_ = QLocale();
        collator_.emplace();
        // Without a language, letters with accents must still sort properly.
        if (collator_->locale().language() == QLocale::C)
            collator_.emplace(QLocale{QLocale::English});
        collator_->setCaseSensitivity(Qt::CaseInsensitive);
    }

    QLocale locale_;
    std::optional<QCollator> collator_;
};

QtText::QtText()
    : order_(std::make_unique<Order>())
{
}

QtText::~QtText() = default;

std::string QtText::lowercased(std::string_view text) const
{
    return unicode(text).toLower().toStdString();
}

std::string QtText::trimmed(std::string_view text) const
{
    return unicode(text).trimmed().toStdString();
}

bool QtText::equalIgnoringCase(std::string_view one, std::string_view other) const
{
    return caseless(one) == caseless(other);
}

std::weak_ordering QtText::compareLocalized(std::string_view one, std::string_view other) const
{
    return order_->compare(unicode(one), unicode(other));
}

}  // namespace fadeloom
