// pressdesk-fuzz: one program for all readers, since only the corpora have to be apart. The
// environment variable PRESSDESK_FUZZ_TARGET says which one; "tests/fuzz/run" sets it.

#include "fuzz.h"

#include <QCoreApplication>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

struct Target
{
    const char *name;
    void (*run)(const QByteArray &input);
};

constexpr Target targets[] = {
    {"ppd", Fuzz::ppd},         {"settings", Fuzz::settings}, {"profile", Fuzz::profile},
    {"policy", Fuzz::policy},   {"pagelist", Fuzz::pageList}, {"watermark", Fuzz::watermark},
    {"account", Fuzz::account}, {"secret", Fuzz::secret},
};

const Target *chosen = nullptr;

} // namespace

void Fuzz::mustHold(bool kept, const char *promise)
{
    if (kept)
        return;
    std::fprintf(stderr, "== not kept: %s\n", promise);
    std::abort();
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    // As in the panel it sets the locale, on which the encoding of secrets depends.
    static const QCoreApplication application(*argc, *argv);
    const QString wanted = qEnvironmentVariable("PRESSDESK_FUZZ_TARGET");
    for (const Target &target : targets) {
        if (wanted == target.name)
            chosen = &target;
    }
    if (chosen)
        return 0;
    std::fprintf(stderr, "PRESSDESK_FUZZ_TARGET is to be one of:");
    for (const Target &target : targets)
        std::fprintf(stderr, " %s", target.name);
    std::fprintf(stderr, "\n");
    std::exit(2);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // A copy with the zero byte behind it that each QByteArray promises.
    chosen->run(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    return 0;
}
