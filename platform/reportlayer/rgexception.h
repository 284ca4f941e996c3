#pragma once

#include <exception>
#include <QByteArray>
#include <QString>
#include <reportlayer/reportlayer_export.h>

namespace REPORTGENERATOR {

/// What operations of the report layer throw that have no result to report a failure with. Elements
/// themselves never throw. Any thread.
class REPORTLAYER_EXPORT RGException : public std::exception
{
public:
    /// \param message  what went wrong, for a trace or a message box
    explicit RGException(const QString& message);
    ~RGException() override;

    QString GetMessage() const;
    /// The message as UTF-8.
    const char* what() const noexcept override;

private:
    QString m_message;
    QByteArray m_bytes; // m_message as UTF-8
};

} // namespace REPORTGENERATOR
