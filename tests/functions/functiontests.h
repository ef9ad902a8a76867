#pragma once

#include <QMap>
#include <QtTest>

#include <functional>

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
            all().insert(Test::staticMetaObject.className(), [](const QStringList &arguments) {
                Test test;
                return QTest::qExec(&test, arguments);
            });
        }
    };

    using Run = std::function<int(const QStringList &arguments)>;
    static QMap<QString, Run> &all() ///< by class
    {
        static QMap<QString, Run> tests;
        return tests;
    }
};
