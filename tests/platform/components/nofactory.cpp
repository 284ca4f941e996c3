#include <quilappstartup/idllinstance.h>

#include <QObject>

/// Declares itself as a component in its metadata, but is no factory.
class NoFactory : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IDllFactory_iid FILE "testcomponent.json")
};

#include "nofactory.moc"
