#include <velmogui/iguicomponent.h>

#include <QObject>

/// A GUI component without anything to show.
class TestGuiComponent : public VelmoGui::IGuiComponent
{
public:
    const QPixmap* GetIcon() const override { return nullptr; }
};

class TestGuiComponentFactory : public QObject, public IDllFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IDllFactory_iid FILE "testcomponent.json")
    Q_INTERFACES(IDllFactory)
public:
    IDllInstance* CreateInstance(const QString&) override
    {
#if defined(JED_TEST_FAILING)
        throw 69; // No exception class at all.
#else
        return new TestGuiComponent;
#endif
    }
};

#include "guicomponent.moc"
