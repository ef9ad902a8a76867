#pragma once

#include <QtTest>

#include <functional>
#include <vector>

/// The test classes of this program. A file registers its own: static const
/// FunctionTests::Entry<TestPageList> entry;
class FunctionTests
{
public:
    template <typename Test>
    struct Entry
    {
        Entry()
        {
            all().push_back([](const QStringList &arguments) {
                Test test;
                return QTest::qExec(&test, arguments);
            });
        }
    };

    using Run = std::function<int(const QStringList &arguments)>;
    static std::vector<Run> &all()
    {
        static std::vector<Run> tests;
        return tests;
    }
};
