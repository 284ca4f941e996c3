#pragma once

#include "jobsession.h"

#include <QDateTime>
#include <QUndoCommand>

namespace Session {

/// A step of a job session. Settings are known by their places, since undo and redo make them anew.
class SettingCommand : public QUndoCommand
{
protected:
    SettingCommand(JobSession* session, const QString& text);

    // Does the change; the first call finds it already done.
    void redo() final;
    virtual void apply() = 0;

    JobSession* session() const { return m_session; }
    JobSession::Setting* insert(const SettingPath& path, JobSession::Factory* factory,
                                const SettingContent& content) const;
    SettingContent contentAt(const SettingPath& path) const;
    bool removeAt(const SettingPath& path) const;
    void moveAt(const SettingPath& parent, int from, int to) const;
    bool setTextAt(const SettingPath& path, const QString& name, const QString& xml) const;
    bool renameAt(const SettingPath& path, const QString& name) const;

private:
    JobSession* m_session;
    bool m_isDone = true;
};

/// A setting with its subtree came.
class InsertCommand : public SettingCommand
{
public:
    InsertCommand(JobSession* session, const QString& text, const SettingPath& path,
                  JobSession::Factory* factory);
    void undo() override;

protected:
    void apply() override;

private:
    SettingPath m_path;
    JobSession::Factory* m_factory;
    SettingContent m_content;
};

/// A setting with its subtree went.
class RemoveCommand : public SettingCommand
{
public:
    RemoveCommand(JobSession* session, const QString& text, const SettingPath& path,
                  JobSession::Factory* factory, const SettingContent& content);
    void undo() override;

protected:
    void apply() override;

private:
    SettingPath m_path;
    JobSession::Factory* m_factory;
    SettingContent m_content;
};

/// A setting changed its place among its siblings.
class MoveCommand : public SettingCommand
{
public:
    /// \param from, to  as for ISubSetting::moveChild()
    MoveCommand(JobSession* session, const QString& text, const SettingPath& parent, int from, int to);
    void undo() override;

protected:
    void apply() override;

private:
    SettingPath m_parent;
    int m_from;
    int m_to;
};

/// A setting was renamed.
class RenameCommand : public SettingCommand
{
public:
    RenameCommand(JobSession* session, const QString& text, const SettingPath& path, const QString& before,
                  const QString& after);
    void undo() override;

protected:
    void apply() override;

private:
    SettingPath m_path;
    QString m_before;
    QString m_after;
};

/// Values changed, by the user and by the rules that the change set off.
class EditCommand : public SettingCommand
{
public:
    struct Change
    {
        SettingPath path;
        QString set;
        QString before;
        QString after;
    };

    /// \param step  edits of one step and the same set are one command
    EditCommand(JobSession* session, const QString& text, const QVector<Change>& changes, int step);
    void undo() override;
    int id() const override { return 1; }
    bool mergeWith(const QUndoCommand* other) override;

protected:
    void apply() override;

private:
    QVector<Change> m_changes;
    int m_step;
    qint64 m_time; // Of the last edit, ms.
};

} // namespace Session
