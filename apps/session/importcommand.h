#pragma once

#include "jobsession.h"

#include <memory>
#include <QUndoCommand>
#include <vector>

namespace Session {

/// Several changes that are one step: what an import does to a setting, and the settings that it makes. Views hear of
/// new and old settings once.
class ImportCommand : public QUndoCommand
{
public:
    ImportCommand(JobSession* session, const QString& text);

    /// \param part  a change that is done; taken over
    void append(QUndoCommand* part) { m_parts.emplace_back(part); }
    bool isEmpty() const { return m_parts.empty(); }

    void redo() override;
    void undo() override;

private:
    JobSession* m_session; // Not owned.
    std::vector<std::unique_ptr<QUndoCommand>> m_parts;
};

} // namespace Session
