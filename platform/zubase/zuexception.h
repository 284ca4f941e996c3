#pragma once

#include <zubase/zubase_export.h>

#include <QByteArray>
#include <QString>

#include <exception>

/// The exception of the installation's libraries: why, and where.
class ZUBASE_EXPORT ZuException : public std::exception
{
public:
    /// \param reason  text for the trace or the user
    /// \param className  class that gave up, may be empty
    /// \param method  its operation, may be empty
    explicit ZuException(const QString& reason, const QString& className = QString(),
                         const QString& method = QString());
    ~ZuException() override;

    QString GetErrorReason() const { return m_reason; }
    QString GetErrorClass() const { return m_className; }
    QString GetErrorMethod() const { return m_method; }

    /// "class::method: reason" in UTF-8, without the parts that are empty.
    const char* what() const noexcept override;

private:
    QString m_reason;
    QString m_className;
    QString m_method;
    QByteArray m_what;
};
