#pragma once

#include <QString>

class ValueBase;

namespace JEDVEPLUGIN {
class ISubSetting;
}

namespace Session {

class JobSession;

/// Where a value is edited: a setting and a field of it.
struct FieldPlace
{
    JEDVEPLUGIN::ISubSetting* setting = nullptr; ///< null: nowhere. The session's.
    QString parameterSet;
    QString field;
};

/// \p setting or the first one below it that carries a parameter set; null if there is none.
/// \param setting  may be null
JEDVEPLUGIN::ISubSetting* findCarrier(JEDVEPLUGIN::ISubSetting* setting, const QString& parameterSet);

/// The value behind a field, as the setting's editor shows it, so that the editor is made if there is none yet.
/// \return null if the editor has no such field. The value tree's.
ValueBase* fieldValue(JEDVEPLUGIN::ISubSetting* setting, const QString& parameterSet, const QString& field);

/// The field of a job that stands for a value of the value tree. Makes the editors that it has to look into: those of
/// the settings that carry the parameter set.
FieldPlace findField(const JobSession& session, const QString& valueTreePath);

/// What a user is told of a value, by its path in the value tree: the label of its field, "Bandwidth". The last part of
/// the path if it stands for no field.
QString fieldLabel(const QString& valueTreePath);
/// The same behind the label of the parameter set: "Scan settings / Bandwidth".
QString fieldTitle(const QString& valueTreePath);

/// "SET/FIELD" of a path in the value tree.
QString fieldOfPath(const QString& valueTreePath);

} // namespace Session
