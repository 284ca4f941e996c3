#pragma once

#include <quilappstartup/quilappstartup_export.h>

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

/// Puts the visible texts of application, library and plug-ins into one language. One for the process; made
/// on first use, never destroyed. GUI thread only.
///
/// Translations are files "NAME_LANGUAGE.qm" in the translation folders: those compiled into the program
/// (":/translations") first, then the ones that were added.
class QUILAPPSTARTUP_EXPORT TranslationCenter
{
public:
    /// Never null.
    static TranslationCenter* Instance();

    /// Adds a folder; it need not exist. Takes effect with the next SetLanguage().
    void AddFolder(const QString& folder);
    QStringList GetFolders() const { return m_folders; }

    /// Takes the translations back that are in force and installs those of \p language into the application:
    /// the files of the bare language ("de") and then of the country ("de_CH"), so that the more special text
    /// wins and of equal ones that of the folder added last. Empty: the texts of the source.
    /// \return false if there is no application object or no readable file of that language; the texts are
    ///         then those of the source
    bool SetLanguage(const QString& language);
    /// The language in force, empty for the texts of the source.
    QString GetLanguage() const { return m_language; }

private:
    TranslationCenter();
    ~TranslationCenter();
    Q_DISABLE_COPY(TranslationCenter)

    void install(const QString& suffix);

    QStringList m_folders;
    QString m_language;
    std::vector<std::unique_ptr<QTranslator>> m_translators; // In force.
};
