#include "settingcommands.h"

#include <isubsetting.h>

namespace Session {

namespace {
// Edits of a value that follow each other faster than this are one step.
constexpr qint64 MERGE_TIME = 1500;

} // namespace

SettingCommand::SettingCommand(JobSession* session, const QString& text)
    : QUndoCommand(text)
    , m_session(session)
{
}

void SettingCommand::redo()
{
    if (!m_isDone)
        apply();
    m_isDone = false;
}

JobSession::Setting* SettingCommand::insert(const SettingPath& path, JobSession::Factory* factory,
                                            const SettingContent& content) const
{
    return m_session->insertText(factory, content, path);
}

SettingContent SettingCommand::contentAt(const SettingPath& path) const
{
    JobSession::Setting* const setting = m_session->settingAt(path);
    return setting ? m_session->contentOf(setting) : SettingContent();
}

bool SettingCommand::removeAt(const SettingPath& path) const
{
    return m_session->removeAt(path);
}

void SettingCommand::moveAt(const SettingPath& parent, int from, int to) const
{
    m_session->moveAt(parent, from, to);
}

bool SettingCommand::setTextAt(const SettingPath& path, const QString& name, const QString& xml) const
{
    return m_session->setTextAt(path, name, xml);
}

bool SettingCommand::renameAt(const SettingPath& path, const QString& name) const
{
    return m_session->renameAt(path, name);
}

InsertCommand::InsertCommand(JobSession* session, const QString& text, const SettingPath& path,
                             JobSession::Factory* factory)
    : SettingCommand(session, text)
    , m_path(path)
    , m_factory(factory)
{
}

void InsertCommand::undo()
{
    m_content = contentAt(m_path);
    removeAt(m_path);
}

void InsertCommand::apply()
{
    insert(m_path, m_factory, m_content);
}

RemoveCommand::RemoveCommand(JobSession* session, const QString& text, const SettingPath& path,
                             JobSession::Factory* factory, const SettingContent& content)
    : SettingCommand(session, text)
    , m_path(path)
    , m_factory(factory)
    , m_content(content)
{
}

void RemoveCommand::undo()
{
    insert(m_path, m_factory, m_content);
}

void RemoveCommand::apply()
{
    removeAt(m_path);
}

MoveCommand::MoveCommand(JobSession* session, const QString& text, const SettingPath& parent, int from,
                         int to)
    : SettingCommand(session, text)
    , m_parent(parent)
    , m_from(from)
    , m_to(to)
{
}

void MoveCommand::undo()
{
    // A position to move to is counted in the list as it is before: behind the moved one it is one more.
    const int place = m_to > m_from ? m_to - 1 : m_to;
    moveAt(m_parent, place, m_from > place ? m_from + 1 : m_from);
}

void MoveCommand::apply()
{
    moveAt(m_parent, m_from, m_to);
}

RenameCommand::RenameCommand(JobSession* session, const QString& text, const SettingPath& path,
                             const QString& before, const QString& after)
    : SettingCommand(session, text)
    , m_path(path)
    , m_before(before)
    , m_after(after)
{
}

void RenameCommand::undo()
{
    renameAt(m_path, m_before);
}

void RenameCommand::apply()
{
    renameAt(m_path, m_after);
}

EditCommand::EditCommand(JobSession* session, const QString& text, const QVector<Change>& changes, int step)
    : SettingCommand(session, text)
    , m_changes(changes)
    , m_step(step)
    , m_time(QDateTime::currentMSecsSinceEpoch())
{
}

void EditCommand::undo()
{
    // Setting one text may set off rules that change another one: the second round puts those right.
    for (int round = 0; round < 2; ++round) {
        for (auto change = m_changes.crbegin(); change != m_changes.crend(); ++change)
            setTextAt(change->path, change->set, change->before);
    }
}

bool EditCommand::mergeWith(const QUndoCommand* other)
{
    const auto* const next = static_cast<const EditCommand*>(other);
    if (next->m_step != m_step || next->m_time - m_time > MERGE_TIME ||
        next->m_changes.size() != m_changes.size())
        return false;
    for (int i = 0; i < m_changes.size(); ++i) {
        if (next->m_changes[i].path != m_changes[i].path || next->m_changes[i].set != m_changes[i].set)
            return false;
    }
    for (int i = 0; i < m_changes.size(); ++i)
        m_changes[i].after = next->m_changes[i].after;
    m_time = next->m_time;
    return true;
}

void EditCommand::apply()
{
    for (int round = 0; round < 2; ++round) {
        for (const Change& change : qAsConst(m_changes))
            setTextAt(change.path, change.set, change.after);
    }
}

} // namespace Session
