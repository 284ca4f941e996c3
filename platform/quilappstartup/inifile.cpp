#include <quilappstartup/inifile_p.h>

#include <QFile>
#include <QFileInfo>

IniFile::IniFile(const QString& path)
{
    const QFileInfo info(path);
    QFile file(path);
    if (!info.exists()) {
        m_problems.append(QString("%1: there is no such file").arg(path));
    } else if (!info.isFile() || info.size() > MAX_SIZE) {
        m_problems.append(QString("%1: not a file of up to 1 MiB").arg(path));
    } else if (!file.open(QIODevice::ReadOnly)) {
        m_problems.append(QString("%1: %2").arg(path, file.errorString()));
    } else {
        readText(QString::fromUtf8(file.read(MAX_SIZE)), info.fileName());
    }
}

void IniFile::readText(const QString& text, const QString& fileName)
{
    Entries* section = nullptr;
    int number = 0;
    for (const QString& rawLine : text.split(QLatin1Char('\n'))) {
        ++number;
        const QString line = rawLine.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char(';')) || line.startsWith(QLatin1Char('#')))
            continue;
        const int equals = line.indexOf(QLatin1Char('='));
        if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']')))
            section = &m_sections[line.mid(1, line.size() - 2).trimmed()];
        else if (section != nullptr && equals > 0)
            section->insert(line.left(equals).trimmed(), line.mid(equals + 1).trimmed());
        else
            m_problems.append(QString("%1:%2: neither [section] nor key=value in a section")
                                  .arg(fileName, QString::number(number)));
    }
}
