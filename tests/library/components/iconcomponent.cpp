#include <velmogui/iguicomponent.h>
#include <zubase/zuexception.h>

#include <QObject>
#include <QPixmap>

/// A GUI component with a picture of one colour, or one that cannot give it.
class TestIconComponent : public VelmoGui::IGuiComponent
{
public:
    TestIconComponent()
        : m_icon(4, 4)
    {
        m_icon.fill(Qt::JED_TEST_COLOR);
    }
    const QPixmap* GetIcon() const override
    {
#if defined(JED_TEST_THROWN)
        throw JED_TEST_THROWN;
#else
        return &m_icon;
#endif
    }

private:
    QPixmap m_icon;
};

class TestIconComponentFactory : public QObject, public IDllFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IDllFactory_iid FILE "testcomponent.json")
    Q_INTERFACES(IDllFactory)
public:
    IDllInstance* CreateInstance(const QString&) override { return new TestIconComponent; }
};

#include "iconcomponent.moc"
