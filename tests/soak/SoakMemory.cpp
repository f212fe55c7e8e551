#include "tests/soak/SoakMemory.h"

#include <QByteArray>
#include <QFile>
#include <malloc.h>
#include <unistd.h>

// Of the sanitizers' library, when the program is linked with it.
extern "C" {
[[gnu::weak]] std::size_t __sanitizer_get_current_allocated_bytes();   // NOLINT
[[gnu::weak]] void __sanitizer_set_death_callback(void (*callback)()); // NOLINT
}

qint64 AllocatedBytes()
{
    if (__sanitizer_get_current_allocated_bytes != nullptr) {
        return static_cast<qint64>(__sanitizer_get_current_allocated_bytes());
    }
    const auto info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
}

qint64 ResidentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

void OnSanitizerDeath(void (*act)())
{
    if (__sanitizer_set_death_callback != nullptr) {
        __sanitizer_set_death_callback(act);
    }
}
