#pragma once

#include <memory>
#include <QApplication>

#if defined(__SANITIZE_ADDRESS__)
#include <QScriptEngine>
#include <sanitizer/lsan_interface.h>
#endif

namespace Session {

/// Makes the application object of a program. What Qt's platform plug-ins, font and script libraries allocate once per
/// process and never free is kept out of a leak report.
/// \param argc  must live as long as the application
inline std::unique_ptr<QApplication> makeApplication(int& argc, char** argv)
{
#if defined(__SANITIZE_ADDRESS__)
    const __lsan::ScopedDisabler ignored;
#endif
    auto application = std::make_unique<QApplication>(argc, argv);
#if defined(__SANITIZE_ADDRESS__)
    QScriptEngine().collectGarbage();
#endif
    return application;
}

} // namespace Session
