// Any text at all, given to everything that reads typed text: numbers, dates, pictures. The first byte
// chooses the locale.

#include "app/Currency.h"
#include "app/FieldWriter.h"
#include "app/ShortDate.h"
#include "app/TextPictures.h"
#include "fuzz/FuzzCheck.h"

#include <QByteArray>
#include <QLocale>

#include <array>
#include <cmath>

namespace {

const QLocale& LocaleOf(unsigned char choice)
{
    static const std::array<QLocale, 7> locales{
        QLocale::c(),
        QLocale(QLocale::English, QLocale::UnitedStates),
        QLocale(QLocale::German, QLocale::Germany),
        QLocale(QLocale::Swedish, QLocale::Sweden),
        QLocale(QLocale::Hungarian, QLocale::Hungary),
        QLocale(QLocale::Arabic, QLocale::Egypt),
        QLocale(QLocale::Japanese, QLocale::Japan),
    };
    return locales.at(choice % locales.size());
}

void CheckDate(const QString& text, const QLocale& locale)
{
    const std::optional<QDate> date = ParseShortDate(text, locale);
    if (date) {
        FUZZ_CHECK(date->isValid() && date->year() >= 100 && date->year() <= 9999);
        FUZZ_CHECK(ParseShortDate(ShortDate(*date, locale), locale) == date);
        FUZZ_CHECK(ParseShortDate(date->toString(Qt::ISODate), locale) == date);
    }
}

void CheckNumber(const QString& text)
{
    const double value = Val(text);
    FUZZ_CHECK(!std::isnan(value));
    if (const std::optional<qint16> whole = ToInt16(value)) {
        FUZZ_CHECK(std::abs(*whole - value) <= 0.5);
        FUZZ_CHECK(Val(Str(*whole)) == *whole);
    } else {
        FUZZ_CHECK(std::abs(value) >= 32767);
    }
    if (std::isfinite(value)) {
        const double shown = Val(Str(value)); // fifteen digits
        FUZZ_CHECK(std::abs(shown - value) <= std::abs(value) * 1e-14);
    }
}

void CheckAmount(const QString& text)
{
    const std::optional<Currency> amount = Currency::FromText(text);
    if (!amount) {
        FUZZ_CHECK(std::abs(Val(text)) > 9.2e14);
        return;
    }
    FUZZ_CHECK(std::abs(Val(text)) < 9.3e14);
    FUZZ_CHECK(Currency::FromText(amount->Plain()) == amount);
    const QString money = Format(*amount, u"####,,##0.00");
    FUZZ_CHECK(money.size() >= 4 && money.at(money.size() - 3) == u'.');
}

void CheckPictures(const QString& text, const QString& picture)
{
    const double value = Val(text);
    for (const QString& shown : {Format(value, picture), Format(text, picture)}) {
        FUZZ_CHECK(FitsFileText(shown));
        FUZZ_CHECK(!shown.contains(u'#'));
    }
    if (std::isfinite(value)) {
        const QString money = Format(value, QStringLiteral("####,,###.00"));
        FUZZ_CHECK(money.size() >= 3 && money.at(money.size() - 3) == u'.');
    }
    const int width = static_cast<int>(picture.size() % 20);
    FUZZ_CHECK(RightJustify(text, width).size() == width);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const QByteArray bytes(reinterpret_cast<const char*>(data + 1), static_cast<qsizetype>(size - 1));
    const QString text = QString::fromUtf8(bytes);
    CheckDate(text, LocaleOf(data[0]));
    CheckNumber(text);
    CheckAmount(text);
    const qsizetype bar = text.indexOf(u'|');
    CheckPictures(text.left(bar), bar < 0 ? QStringLiteral("###.00") : text.mid(bar + 1));
    return 0;
}
