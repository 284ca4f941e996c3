// The changes of a job themselves, as its steps do and undo them.

#include "jobsession.h"

#include "settingwalk.h"

#include <jedsubsettingfactory.h>
#include <QScopedValueRollback>

namespace Session {

JobSession::Setting* JobSession::insertText(Factory* factory, const SettingContent& content,
                                            const SettingPath& path)
{
    const QScopedValueRollback<bool> working(m_isWorking, true);
    Setting* const parent = settingAt(path.mid(0, path.size() - 1));
    Setting* const setting = factory->pasteMimeText(content.text, parent);
    if (!setting)
        return nullptr;
    if (setting->getDisplayName() != content.name)
        setting->setDisplayName(content.name);
    if (parent) {
        const int from = setting->row();
        if (from != path.last())
            parent->moveChild(from, path.last());
    } else {
        m_topLevel.insert(m_topLevel.begin() + path.first(), newTopLevel(factory, setting, content.subjob));
    }
    walk(setting, [this](Setting* node) { remember(node); });
    tellInserted(setting);
    return setting;
}

void JobSession::tellInserted(Setting* setting)
{
    tellStructure();
    if (setting->parent())
        emit settingChanged(setting->parent());
}

bool JobSession::removeAt(const SettingPath& path)
{
    const QScopedValueRollback<bool> working(m_isWorking, true);
    Setting* const setting = settingAt(path);
    Factory* const factory = factoryOf(setting);
    if (!factory)
        return false;
    QVector<Setting*> gone;
    walk(setting, [&gone](Setting* node) { gone.append(node); });
    emit settingLeaving(setting);
    if (!factory->deleteSubSetting(setting)) {
        tellStructure();
        return false;
    }
    for (Setting* node : qAsConst(gone))
        forget(node);
    if (path.size() == 1)
        m_topLevel.erase(m_topLevel.begin() + path.first());
    tellStructure();
    return true;
}

void JobSession::moveAt(const SettingPath& parent, int from, int to)
{
    const QScopedValueRollback<bool> working(m_isWorking, true);
    if (Setting* const setting = settingAt(parent)) {
        setting->moveChild(from, to);
    } else {
        const TopLevel top = m_topLevel[size_t(from)];
        m_topLevel.erase(m_topLevel.begin() + from);
        m_topLevel.insert(m_topLevel.begin() + (to > from ? to - 1 : to), top);
    }
    tellStructure();
}

bool JobSession::setTextAt(const SettingPath& path, const QString& name, const QString& xml)
{
    const QScopedValueRollback<bool> working(m_isWorking, true);
    Setting* const setting = settingAt(path);
    if (!setting || !setting->setParameterSetText(name, xml))
        return false;
    // Rules may have changed further settings of the same sub-job.
    Setting* root = setting;
    while (root->parent())
        root = root->parent();
    walk(root, [this](Setting* node) { remember(node); });
    emit settingChanged(setting);
    return true;
}

bool JobSession::renameAt(const SettingPath& path, const QString& name)
{
    const QScopedValueRollback<bool> working(m_isWorking, true);
    Setting* const setting = settingAt(path);
    if (!setting || !setting->setDisplayName(name))
        return false;
    // A plug-in may keep the name in a parameter set.
    remember(setting);
    emit settingChanged(setting);
    return true;
}

} // namespace Session
