#pragma once

#include <quilappstartup/cfgcenter.h>

#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

namespace JedTest {

/// A copy of an installation in a folder of its own, which a test may change, chosen for the process. Goes with the
/// object. Receivers are read once per process: one of these for a test program.
class TemporaryInstallation
{
public:
    /// \param original         folder of the installation to copy
    /// \param componentFolder  of the GUI components; empty: none
    explicit TemporaryInstallation(const QString& original, const QString& componentFolder = QString())
    {
        QDirIterator files(original, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            const QString copy = path(QDir(original).relativeFilePath(file));
            if (!QFileInfo(copy).dir().mkpath(QStringLiteral(".")) || !QFile::copy(file, copy))
                qFatal("%s cannot be copied", qPrintable(file));
            QFile(copy).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        }
        qunsetenv(CfgCenter::ENVIRONMENT_VARIABLE);
        CfgCenter::Instance()->SetInstallation(m_folder.path());
        if (!componentFolder.isEmpty())
            CfgCenter::Instance()->AddComponentFolder(componentFolder);
    }

    /// Of a file in it.
    QString path(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

} // namespace JedTest
