#include "commandline.h"

#include <exception>
#include <QApplication>
#include <QLoggingCategory>
#include <session/headlessdialogs.h>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace {
// What Qt's platform plug-ins and font libraries allocate once per process and never free is no leak of ours.
class LeaksOfTheFramework
{
public:
#if defined(__SANITIZE_ADDRESS__)
    LeaksOfTheFramework()
    {
        __lsan_disable();
    }
    ~LeaksOfTheFramework()
    {
        __lsan_enable();
    }
#endif
};
} // namespace

int main(int argc, char** argv)
{
    // The library asks for an application that can show message boxes; there is no screen to show them on.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    std::unique_ptr<QApplication> application;
    {
        const LeaksOfTheFramework ignored;
        application = std::make_unique<QApplication>(argc, argv);
    }
    const Session::HeadlessDialogs dialogs;
    try {
        return JedTool::runCommandLine(application->arguments().mid(1));
    } catch (const std::exception& fault) {
        JedTool::printError(
            JedTool::translate("jedtool: internal fault: %1").arg(QString::fromUtf8(fault.what())));
        return JedTool::INTERNAL;
    }
}
