#pragma once

#include "jedvepb_export.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>

namespace JEDVEPLUGIN {

/// Knows which parameter sets of a job file belong to which component of a resource, and which component
/// supplies a parameter set for a type of resource. Built once when the library is loaded, only read
/// afterwards.
class JEDVEPB_EXPORT ParameterSetMapper
{
public:
    /// The parameter sets that a component supplies, empty for a component without any.
    /// \param componentName  upper and lower case are the same
    static const QList<QString> getParameterSetNames(const QString& componentName);

    /// Name of the component that supplies a parameter set for a type of resource, a null string if there is
    /// none. The reference stays valid for the life of the process.
    /// \param resourceType      case counts
    /// \param parameterSetName  case counts
    static const QString& getComponentName(const QString& resourceType, const QString& parameterSetName);

private:
    ParameterSetMapper();

    QMultiHash<QString, QString> m_setsByComponent; // component in lower case -> parameter sets
    QHash<QString, QHash<QString, QString>> m_componentsByResource; // type of resource -> set -> component

    static const QString s_globalMap[][3]; // type of resource, component, parameter set
    static const ParameterSetMapper s_mapper;
};

} // namespace JEDVEPLUGIN
