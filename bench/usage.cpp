#include "usage.h"

#include <QFile>

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

double seconds(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

double cpuOf(int who)
{
    rusage used;
    getrusage(who, &used);
    return seconds(used.ru_utime) + seconds(used.ru_stime);
}

double quantile(std::vector<double> values, double part)
{
    if (values.empty())
        return -1;
    const auto at = std::min(values.size() - 1, std::size_t(double(values.size()) * part));
    std::nth_element(values.begin(), values.begin() + std::ptrdiff_t(at), values.end());
    return values[at];
}

} // namespace

Usage usageNow()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return {std::chrono::duration<double>(now).count(), cpuOf(RUSAGE_SELF), cpuOf(RUSAGE_CHILDREN)};
}

Usage operator-(const Usage &a, const Usage &b)
{
    return {a.wall - b.wall, a.own - b.own, a.children - b.children};
}

Usage operator+(const Usage &a, const Usage &b)
{
    return {a.wall + b.wall, a.own + b.own, a.children + b.children};
}

Usage usageOfProgram(const QStringList &command)
{
    std::vector<QByteArray> words;
    for (const QString &word : command)
        words.push_back(QFile::encodeName(word));
    std::vector<char *> arguments;
    for (QByteArray &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const Usage before = usageNow();
    pid_t process = 0;
    int status = -1;
    const bool isStarted =
        posix_spawnp(&process, arguments[0], &actions, nullptr, arguments.data(), environ) == 0;
    if (isStarted)
        waitpid(process, &status, 0);
    Usage used = usageNow() - before;
    posix_spawn_file_actions_destroy(&actions);
    if (status != 0)
        used.wall = -1;
    return used;
}

double median(std::vector<double> values)
{
    return quantile(std::move(values), 0.5);
}

double ninetyNine(std::vector<double> values)
{
    return quantile(std::move(values), 0.99);
}
