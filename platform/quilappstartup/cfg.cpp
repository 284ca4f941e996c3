#include <quilappstartup/cfg.h>

QStringList Cfg::GetKeys() const
{
    QStringList keys = m_entries.keys();
    keys.sort();
    return keys;
}
