#pragma once

class QByteArray;
class QString;

/// What can be done to keep a secret from being read out of this process.

/// Overwrites and empties the text. Copies that others share with it stay as they are, so take the
/// secret back from them first.
void cleanse(QByteArray *text);
void cleanse(QString *text);

/// While it lives, the process can neither be traced by others of the same user nor leave a core
/// dump (prctl(2), PR_SET_DUMPABLE). Afterwards it is as before.
class UntraceableProcess
{
public:
    UntraceableProcess();
    UntraceableProcess(const UntraceableProcess &) = delete;
    UntraceableProcess &operator=(const UntraceableProcess &) = delete;
    ~UntraceableProcess();

private:
    int before; ///< -1 if unknown
};
