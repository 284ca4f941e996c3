#pragma once

#include <QApplication>
#include <QtTest/qtest_widgets.h>
#include <QtTest>
#include <QtWidgets/qtestsupport_widgets.h>

#if defined(QT_SCRIPT_LIB)
#include <QScriptEngine>
#endif

#include <memory>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace JedTest {

/// Makes the application object of a test. What Qt's platform plug-ins, font and script libraries allocate once per
/// process and never free is kept out of the leak report; everything that the test itself allocates stays in it.
/// \param argc  must live as long as the application
inline std::unique_ptr<QApplication> makeApplication(int& argc, char** argv)
{
#if defined(__SANITIZE_ADDRESS__)
    __lsan_disable();
#endif
    auto application = std::make_unique<QApplication>(argc, argv);
#if defined(__SANITIZE_ADDRESS__) && defined(QT_SCRIPT_LIB)
    QScriptEngine().collectGarbage();
#endif
#if defined(__SANITIZE_ADDRESS__)
    __lsan_enable();
#endif
    return application;
}

/// Runs a test class under a QApplication.
template <typename TestClass>
int run(int argc, char** argv)
{
    const auto application = makeApplication(argc, argv);
    TestClass test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

} // namespace JedTest

/// Replaces QTEST_MAIN for tests that need widgets.
#define JED_TEST_MAIN(TestClass)                                                                             \
    int main(int argc, char** argv)                                                                          \
    {                                                                                                        \
        return JedTest::run<TestClass>(argc, argv);                                                          \
    }
