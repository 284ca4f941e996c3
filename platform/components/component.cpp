// One source for all GUI components; what differs comes from jed_add_component().

#include <velmogui/parametersetcomponent.h>

#include <QObject>

class ComponentFactory : public QObject, public IDllFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IDllFactory_iid FILE "component.json")
    Q_INTERFACES(IDllFactory)
public:
    IDllInstance* CreateInstance(const QString&) override
    {
        return new VelmoGui::ParameterSetComponent(QStringLiteral(COMPONENT_SETS).split(QLatin1Char(',')),
                                                   QStringLiteral(COMPONENT_LETTERS), COMPONENT_HUE);
    }
};

#include "component.moc"
