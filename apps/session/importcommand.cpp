#include "importcommand.h"

#include "settingcommands.h"

#include <isubsetting.h>
#include <jedsubsettingfactory.h>
#include <QScopedValueRollback>

namespace Session {

ImportCommand::ImportCommand(JobSession* session, const QString& text)
    : QUndoCommand(text)
    , m_session(session)
{
}

void ImportCommand::redo()
{
    const JobSession::StructureHold hold(m_session);
    for (const auto& part : m_parts)
        part->redo();
}

void ImportCommand::undo()
{
    const JobSession::StructureHold hold(m_session);
    for (auto part = m_parts.rbegin(); part != m_parts.rend(); ++part)
        (*part)->undo();
}

JobSession::StructureHold::StructureHold(JobSession* session)
    : m_session(session)
{
    ++m_session->m_structureHolds;
}

JobSession::StructureHold::~StructureHold()
{
    --m_session->m_structureHolds;
    m_session->tellStructure();
}

bool JobSession::importProfile(Setting* setting, const QString& file, QList<Setting*>* made)
{
    Factory* const factory = factoryOf(setting);
    if (!factory || factory->isReadOnly() || !factory->canImportProfile(setting))
        return false;
    flushEdits();
    const SettingPath path = pathOf(setting);
    const QString name = setting->getDisplayName();
    const StructureHold hold(this);
    {
        const QScopedValueRollback<bool> working(m_isWorking, true);
        *made = factory->importProfile(file, setting);
    }
    auto step = std::make_unique<ImportCommand>(this, tr("Import into %1").arg(name));
    m_collected = step.get();
    for (Setting* known : m_known.keys()) {
        if (pathOf(known).mid(0, path.size()) == path)
            m_changed.insert(known);
    }
    flushEdits();
    if (setting->getDisplayName() != name)
        push(new RenameCommand(this, QString(), path, name, setting->getDisplayName()));
    for (Setting* added : qAsConst(*made))
        inserted(factory, added, QString());
    m_collected = nullptr;
    if (step->isEmpty())
        return false;
    m_undoStack.push(step.release());
    emit settingChanged(setting);
    return true;
}

} // namespace Session
