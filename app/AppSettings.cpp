#include "app/AppSettings.h"

#include "app/DrawDatabase.h"
#include "app/FieldReader.h"
#include "app/FieldWriter.h"
#include "app/TextPictures.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool ReadInteger(FieldReader& fields, qint16& value)
{
    const std::optional<Field> field = fields.Next();
    const std::optional<double> number = field ? FieldNumber(*field) : std::nullopt;
    const std::optional<qint16> fits = number ? ToInt16(*number) : std::nullopt;
    value = fits.value_or(value);
    return fits.has_value();
}

bool ReadText(FieldReader& fields, QString& value)
{
    const std::optional<Field> field = fields.Next();
    if (field) {
        value = fields.Text(*field);
    }
    return field.has_value();
}

/// The settings are one line, whatever a damaged file has brought into them.
QString OneLine(QString text)
{
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return c.category() == QChar::Other_Control; }, u' ');
    return text;
}

qint16 WithinOr(qint16 value, int highest, qint16 fallback)
{
    return value >= 1 && value <= highest ? value : fallback;
}

} // namespace

Outcome WriteSettings(const AppSettings& settings, QByteArray& bytes)
{
    FieldWriter writer;
    writer.Number(settings.printerFont);
    writer.Number(settings.defaultPicks);
    writer.Number(settings.defaultHighest);
    writer.Number(settings.entryForms);
    writer.Text(OneLine(settings.currencySymbol));
    writer.Text(OneLine(settings.userName));
    writer.EndLine();
    if (!writer.EverythingHadAPlace()) {
        return Outcome::Failure(
            u"The name or the currency symbol has a character that the file cannot hold."_s);
    }
    bytes = writer.Bytes();
    return {};
}

bool ReadSettings(const QByteArray& bytes, AppSettings& settings)
{
    const AppSettings defaults;
    FieldReader fields(bytes);
    const bool complete =
        ReadInteger(fields, settings.printerFont) && ReadInteger(fields, settings.defaultPicks) &&
        ReadInteger(fields, settings.defaultHighest) && ReadInteger(fields, settings.entryForms) &&
        ReadText(fields, settings.currencySymbol) && ReadText(fields, settings.userName);
    if (!complete) {
        settings.defaultPicks = defaults.defaultPicks;
        settings.defaultHighest = defaults.defaultHighest;
        settings.entryForms = defaults.entryForms;
    }
    constexpr int kMostForms = 10;
    settings.defaultPicks = WithinOr(settings.defaultPicks, kMostPicks, defaults.defaultPicks);
    settings.defaultHighest = WithinOr(settings.defaultHighest, kMostNumbers, defaults.defaultHighest);
    settings.entryForms = WithinOr(settings.entryForms, kMostForms, defaults.entryForms);
    if (settings.currencySymbol.isEmpty()) {
        settings.currencySymbol = defaults.currencySymbol;
    }
    return complete;
}
