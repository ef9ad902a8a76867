#include "privileged/secretmemory.h"

#include <QByteArray>
#include <QString>

#include <openssl/crypto.h>

#include <sys/prctl.h>

namespace {

constexpr int dumpable = 1;

template <typename Text>
void cleanseText(Text *text)
{
    // Shared data would only be copied by the access.
    if (text->isDetached())
        OPENSSL_cleanse(text->data(), size_t(text->size()) * sizeof *text->constData());
    *text = Text();
}

} // namespace

void cleanse(QByteArray *text)
{
    cleanseText(text);
}

void cleanse(QString *text)
{
    cleanseText(text);
}

UntraceableProcess::UntraceableProcess()
    : before(prctl(PR_GET_DUMPABLE))
{
    prctl(PR_SET_DUMPABLE, 0);
}

UntraceableProcess::~UntraceableProcess()
{
    // The kernel's third state, 2, can't be set; it comes from the machine and is no more open.
    if (before == dumpable)
        prctl(PR_SET_DUMPABLE, before);
}
