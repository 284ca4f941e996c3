#include "commandline.h"

#include <exception>
#include <QLoggingCategory>
#include <session/application.h>
#include <session/headlessdialogs.h>

int main(int argc, char** argv)
{
    // The library asks for an application that can show message boxes; there is no screen to show them on.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt has options of its own, "--plugin" among them: it sees none of ours.
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    int ownCount = 1;
    // Nobody sees the windows, so what Qt has to say about them does not matter. Traces are for those who ask for them
    // with QT_LOGGING_RULES, which comes before these rules.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false\njobeditorve.trace=false"));
    const std::unique_ptr<QApplication> application = Session::makeApplication(ownCount, argv);
    const Session::HeadlessDialogs dialogs;
    try {
        return JedTool::runCommandLine(arguments);
    } catch (const std::exception& fault) {
        JedTool::printError(
            JedTool::Texts::tr("jedtool: internal fault: %1").arg(QString::fromUtf8(fault.what())));
        return JedTool::INTERNAL;
    }
}
