// Any bytes at all, read as a settings file. Whatever they are, the settings are within their ranges, and
// what is written of them reads back as the same.

#include "app/AppSettings.h"
#include "app/FieldWriter.h"
#include "fuzz/FuzzCheck.h"

#include <QByteArray>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    AppSettings settings;
    const bool complete = ReadSettings(bytes, settings);
    FUZZ_CHECK(settings.defaultPicks >= 1 && settings.defaultPicks <= 10);
    FUZZ_CHECK(settings.defaultHighest >= 1 && settings.defaultHighest <= 60);
    FUZZ_CHECK(settings.entryForms >= 1 && settings.entryForms <= 10);
    FUZZ_CHECK(!settings.currencySymbol.isEmpty());
    if (!complete) {
        FUZZ_CHECK(settings.defaultPicks == 6 && settings.defaultHighest == 49 && settings.entryForms == 1);
        FUZZ_CHECK(settings.userName.isEmpty());
    }

    FieldWriter writer;
    writer.Number(settings.printerFont);
    writer.Number(settings.defaultPicks);
    writer.Number(settings.defaultHighest);
    writer.Number(settings.entryForms);
    writer.Text(settings.currencySymbol);
    writer.Text(settings.userName);
    writer.EndLine();
    AppSettings again;
    const bool quoted = settings.currencySymbol.contains(u'"') || settings.userName.contains(u'"');
    if (writer.EverythingHadAPlace() && !quoted) {
        FUZZ_CHECK(ReadSettings(writer.Bytes(), again));
        FUZZ_CHECK(again == settings);
    }
    return 0;
}
