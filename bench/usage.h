#pragma once

#include <QStringList>

#include <vector>

/// What something took, in s.
struct Usage
{
    double wall = 0;
    double own = 0;      ///< CPU time of this process
    double children = 0; ///< CPU time of processes that it has waited for

    double cpu() const { return own + children; }
};

/// What has been used since the process began; wall from any moment.
Usage usageNow();
Usage operator-(const Usage &a, const Usage &b);
Usage operator+(const Usage &a, const Usage &b);

/// Runs a program without output and waits for it; `wall` is negative if it fails.
Usage usageOfProgram(const QStringList &command);

double median(std::vector<double> values);
/// The value that 99 % of the values don't exceed.
double ninetyNine(std::vector<double> values);
