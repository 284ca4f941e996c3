#include <zubase/zuexception.h>

#include <QStringList>

ZuException::ZuException(const QString& reason, const QString& className, const QString& method)
    : m_reason(reason)
    , m_className(className)
    , m_method(method)
{
    QStringList place{className, method};
    place.removeAll(QString());
    QStringList parts{place.join(QLatin1String("::")), reason};
    parts.removeAll(QString());
    m_what = parts.join(QLatin1String(": ")).toUtf8();
}

ZuException::~ZuException() = default;

const char* ZuException::what() const noexcept
{
    return m_what.constData();
}
