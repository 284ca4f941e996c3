#include "testcomponent.h"

#include <zubase/zuexception.h>

#include <QObject>

#include <stdexcept>

#if defined(JED_TEST_MISSING_SYMBOL)
// Defined in no library: the loader has to notice.
void functionOfAnotherRelease();
#endif

/// Makes instances; names that begin with "throw" and "nothing" stand for what can go wrong.
class TestComponentFactory : public QObject, public IDllFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IDllFactory_iid FILE "testcomponent.json")
    Q_INTERFACES(IDllFactory)
public:
    TestComponentFactory()
    {
#if defined(JED_TEST_THROWING_PLUGIN)
        throw std::runtime_error("no licence");
#elif defined(JED_TEST_MISSING_SYMBOL)
        functionOfAnotherRelease();
#endif
    }

    IDllInstance* CreateInstance(const QString& instanceName) override
    {
        if (instanceName == "throw reason")
            throw ZuException("no such antenna", "TestComponentFactory", "CreateInstance");
        if (instanceName == "throw standard")
            throw std::runtime_error("no memory on the card");
        if (instanceName == "throw number")
            throw 7;
        if (instanceName == "nothing")
            return nullptr;
        return new TestComponent(instanceName);
    }
};

#include "testcomponent.moc"
