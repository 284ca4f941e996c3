#include "mapwindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>
#include <quilappstartup/cfgcenter.h>
#include <quilappstartup/translationcenter.h>

namespace {
// The language of the installation; English where it names none or has no translation.
void useLanguage(const QString& installation)
{
    CfgCenter* const center = CfgCenter::Instance();
    center->SetInstallation(installation);
    TranslationCenter* const translations = TranslationCenter::Instance();
    translations->AddFolder(QCoreApplication::applicationDirPath() +
                            QStringLiteral("/../lib/jobeditorve/translations"));
    translations->SetLanguage(center->GetAdminCfg(2)->GetString(QStringLiteral("Language")));
}
} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("mapview"));
    QCoreApplication::setApplicationVersion(QStringLiteral(JED_VERSION));

    QCommandLineParser parser;
    const auto text = [](const char* source) { return QCoreApplication::translate("main", source); };
    parser.setApplicationDescription(text("The map on which other programs draw."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({QStringLiteral("installation"), text("Folder of the installation."), text("DIR")});
    parser.addOption({QStringLiteral("server"), text("Name by which clients find the map."), text("NAME")});
    parser.addOption({QStringLiteral("dark"), text("Light colours on dark windows.")});
    parser.addOption({QStringLiteral("picture"),
                      text("Write a picture when the first client leaves, and end."), text("FILE")});
    parser.addOption({QStringLiteral("size"), text("Size of the window, in pixels."), text("WxH"),
                      QStringLiteral("1100x700")});
    parser.process(application);

    useLanguage(parser.value(QStringLiteral("installation")));
    if (parser.isSet(QStringLiteral("dark"))) {
        QApplication::setStyle(QStringLiteral("Fusion"));
        QApplication::setPalette(QPalette(QColor(53, 53, 53)));
    }
    MapWindow window;
    const QStringList size = parser.value(QStringLiteral("size")).split(QLatin1Char('x'));
    window.resize(size.value(0).toInt(), size.value(1).toInt());
    window.show();
    QString error;
    if (!window.listen(MapMessage::serverName(parser.value(QStringLiteral("server"))), &error)) {
        QTextStream(stderr) << error << '\n';
        return 1;
    }
    if (parser.isSet(QStringLiteral("picture")))
        window.drawPicture(parser.value(QStringLiteral("picture")));
    return QApplication::exec();
}
