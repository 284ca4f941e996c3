#include <quilappstartup/translationcenter.h>

#include <QCoreApplication>
#include <QDir>
#include <QTranslator>

TranslationCenter* TranslationCenter::Instance()
{
    static TranslationCenter* const s_instance = new TranslationCenter;
    return s_instance;
}

TranslationCenter::TranslationCenter()
    : m_folders(QStringLiteral(":/translations"))
{
}

TranslationCenter::~TranslationCenter() = default;

void TranslationCenter::AddFolder(const QString& folder)
{
    if (!folder.isEmpty() && !m_folders.contains(folder))
        m_folders.append(folder);
}

bool TranslationCenter::SetLanguage(const QString& language)
{
    m_translators.clear(); // Each takes itself out of the application.
    m_language.clear();
    if (language.isEmpty() || QCoreApplication::instance() == nullptr)
        return language.isEmpty();
    const int underscore = language.indexOf(QLatin1Char('_'));
    if (underscore > 0)
        install(language.left(underscore));
    install(language);
    if (m_translators.empty())
        return false;
    m_language = language;
    return true;
}

void TranslationCenter::install(const QString& suffix)
{
    const QString ending = QString("_%1.qm").arg(suffix);
    for (const QString& folder : m_folders) {
        for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files, QDir::Name)) {
            auto translator = std::make_unique<QTranslator>();
            if (!file.fileName().endsWith(ending) || !file.isFile() || !translator->load(file.filePath()))
                continue;
            QCoreApplication::installTranslator(translator.get());
            m_translators.push_back(std::move(translator));
        }
    }
}
