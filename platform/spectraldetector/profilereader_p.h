#pragma once

#include <QSet>
#include <QString>
#include <QVector>
#include <QXmlStreamReader>

#include <initializer_list>

class QXmlStreamWriter;

namespace SpectralDetector {

/// One pass over the text of a profile file, within bounds whatever the file holds.
class ProfileReader
{
public:
    struct Category
    {
        QString name;
        QString parameters; // XML text
    };

    /// Once per object.
    /// \param maxSize  bytes
    /// \return false if the file cannot be read or is no profile, see problem()
    bool read(const QString& fileName, qint64 maxSize);
    QString problem() const { return m_problem; }
    QString name() const { return m_name; }
    QVector<Category> categories() const { return m_categories; }

private:
    bool readText(const QString& fileName, qint64 maxSize, QString* text);
    bool readChild(const char* element);
    void readProfile();
    void readCategory();
    void readParameter(QXmlStreamWriter* writer, QSet<QString>* names);
    void expectAttributes(std::initializer_list<const char*> allowed);
    QString takeName(QSet<QString>* names);
    double number(const char* attribute);
    QString attribute(const char* name) const;
    void reject(const QString& reason);

    QXmlStreamReader m_xml;
    QString m_problem;
    QString m_name;
    QVector<Category> m_categories;
    QSet<QString> m_categoryNames;
};

} // namespace SpectralDetector
