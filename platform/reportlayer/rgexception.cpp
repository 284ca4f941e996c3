#include <reportlayer/rgexception.h>

namespace REPORTGENERATOR {

RGException::RGException(const QString& message)
    : m_message(message)
    , m_bytes(message.toUtf8())
{
}

RGException::~RGException() = default;

QString RGException::GetMessage() const
{
    return m_message;
}

const char* RGException::what() const noexcept
{
    return m_bytes.constData();
}

} // namespace REPORTGENERATOR
