#pragma once

#include <QMultiMap>
#include <QtTest>

#include <functional>

/// The tests of this program, under the name of their class or subject.
namespace FunctionTests {

using Run = std::function<int(const QStringList &arguments)>;

inline QMultiMap<QString, Run> &all()
{
    static QMultiMap<QString, Run> tests;
    return tests;
}

/// Registers a test class: static const FunctionTests::Entry<TestPrivileged> entry;
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

/// What a function makes of its arguments: a row each, with "|" between its name, its arguments
/// and what comes out. "n{120}" stands for 120 times "n", "(ab){9}" for 9 times "ab".
struct Table
{
    using Function = std::function<QStringList(const QStringList &arguments)>;

    Table(const char *subject, int argumentCount, const Function &function, const char *rows);
};

} // namespace FunctionTests
