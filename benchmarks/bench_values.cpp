#include <values/node.h>
#include <values/value.h>

#include <QList>
#include <QObject>
#include <QStringList>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

// The value tree: a change of a value that two observers hear of, and the making and deleting of
// values and nodes in a node.

namespace {

const int VALUES = 10000;
const int NODES = 3000;

/// Hears of changes as briefly as possible, out of the compiler's sight.
class Counter : public IObserver
{
public:
    void Update(Observable*, TChangeCode code) override { m_sum += code; }
    int sum() const { return m_sum; }

private:
    int m_sum = 0;
};

/// The yardstick that a straightforward reading gives: tell a copy of the list, skip who is gone meanwhile.
class NaiveValue
{
public:
    void addObserver(IObserver* observer) { m_observers.append(observer); }
    virtual ~NaiveValue() = default;
    virtual bool setValue(int value)
    {
        if (m_value == value)
            return true;
        m_value = value;
        QList<IObserver*> copy = m_observers;
        copy.detach();
        for (IObserver* observer : copy) {
            if (m_observers.contains(observer))
                observer->Update(nullptr, CHANGE_VALUE);
        }
        return true;
    }

private:
    int m_value = 0;
    QList<IObserver*> m_observers; // Not owned.
};

/// The naive node: a list of children, looked up by a walk, and a recursive end.
class NaiveNode
{
public:
    explicit NaiveNode(const QString& id = QString())
        : m_id(id)
    {
    }
    ~NaiveNode() { qDeleteAll(m_children); }
    NaiveNode* addChildNode(const QString& id)
    {
        for (NaiveNode* child : qAsConst(m_children)) {
            if (child->m_id == id)
                return child;
        }
        m_children.append(new NaiveNode(id));
        return m_children.last();
    }

private:
    Q_DISABLE_COPY(NaiveNode)

    QString m_id;
    QList<NaiveNode*> m_children; // Owned.
};

/// The peer: a property of a QObject.
class SignallingValue : public QObject
{
    Q_OBJECT
public:
    void setValue(int value)
    {
        if (m_value == value)
            return;
        m_value = value;
        emit valueChanged(value);
    }
signals:
    void valueChanged(int value);

private:
    int m_value = 0;
};

QStringList ids(int count)
{
    QStringList ids;
    for (int i = 0; i < count; ++i)
        ids.append(QString("Node %1").arg(i));
    return ids;
}

void changeValue(benchmark::State& state)
{
    Counter first;
    Counter second;
    ValueInt value;
    value.AddObserver(&first);
    value.AddObserver(&second);
    ValueInt* target = &value;
    int number = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(target);
        target->SetValue(++number);
    }
    benchmark::DoNotOptimize(first.sum() + second.sum());
    value.DeleteObserver(&first);
    value.DeleteObserver(&second);
}

void changeNaiveValue(benchmark::State& state)
{
    Counter first;
    Counter second;
    NaiveValue value;
    value.addObserver(&first);
    value.addObserver(&second);
    NaiveValue* target = &value;
    int number = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(target);
        target->setValue(++number);
    }
    benchmark::DoNotOptimize(first.sum() + second.sum());
}

void changeWithQtSignal(benchmark::State& state)
{
    int first = 0;
    int second = 0;
    SignallingValue value;
    QObject::connect(&value, &SignallingValue::valueChanged, &value,
                     [&first](int) { first += CHANGE_VALUE; });
    QObject::connect(&value, &SignallingValue::valueChanged, &value,
                     [&second](int) { second += CHANGE_VALUE; });
    SignallingValue* target = &value;
    int number = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(target);
        target->setValue(++number);
    }
    benchmark::DoNotOptimize(first + second);
}

void newAndDeleteValues(benchmark::State& state)
{
    const QStringList names = ids(VALUES);
    std::vector<ValueBase*> values(VALUES);
    for (auto _ : state) {
        for (int i = 0; i < VALUES; ++i) {
            auto* const value = new ValueInt;
            value->SetName(names.at(i));
            values[size_t(i)] = value;
        }
        for (ValueBase* value : values)
            delete value;
    }
}

void valuesInANode(benchmark::State& state)
{
    const QStringList names = ids(VALUES);
    for (auto _ : state) {
        Node node;
        for (int i = 0; i < VALUES; ++i) {
            auto* const value = new ValueInt;
            value->SetName(names.at(i));
            node.AddChild(value);
        }
        benchmark::DoNotOptimize(node.GetValueCount());
    }
}

/// As many nodes in all whatever the argument, children of one node, is; so times compare as times per node.
template <class NodeType, class Add>
void addNodes(benchmark::State& state, Add add)
{
    const int perParent = int(state.range(0));
    const QStringList names = ids(perParent);
    for (auto _ : state) {
        for (int made = 0; made < NODES; made += perParent) {
            NodeType parent;
            for (const QString& name : names)
                benchmark::DoNotOptimize(add(parent, name));
        }
    }
}

void childNodes(benchmark::State& state)
{
    addNodes<Node>(state, [](Node& parent, const QString& id) { return parent.AddChildNode(id); });
}

void naiveChildNodes(benchmark::State& state)
{
    addNodes<NaiveNode>(state, [](NaiveNode& parent, const QString& id) { return parent.addChildNode(id); });
}

} // namespace

BENCHMARK(changeValue);
BENCHMARK(changeNaiveValue);
BENCHMARK(changeWithQtSignal);
BENCHMARK(newAndDeleteValues);
BENCHMARK(valuesInANode);
BENCHMARK(childNodes)->Arg(NODES / 10)->Arg(NODES);
BENCHMARK(naiveChildNodes)->Arg(NODES / 10)->Arg(NODES);

BENCHMARK_MAIN();
#include "bench_values.moc"
