#pragma once

#include <QJsonArray>
#include <QList>
#include <QString>

namespace Session {

/// Something about a file or a job that a person should know.
struct Finding
{
    enum Severity {
        NOTE,    ///< good to know, nothing to do
        WARNING, ///< works, but something is lost or doubtful
        FAILURE, ///< does not work
    };

    Severity severity = FAILURE;
    QString place;            ///< the file, or what else the finding is about; may be empty
    int line = 0;             ///< from 1; 0 if the finding has no line
    int column = 0;           ///< from 1; 0 if the finding has no column
    QString text;             ///< what is the matter, without a full stop
    QString advice;           ///< what to do about it, a whole sentence; may be empty
    QString code = QString(); ///< by which its explanation is looked up, "R12"; mostly empty

    /// "place:line:column: severity [code]: text", and the advice indented on a line of its own.
    QString toText() const;
};

using Findings = QList<Finding>;

/// "note", "warning" or "error", as in JSON.
QString severityName(Finding::Severity severity);

/// One finding per object, in order; members without content are left out.
QJsonArray toJson(const Findings& findings);

/// Whether there is a finding that is more than a note.
bool needsAttention(const Findings& findings);

} // namespace Session
