#include "ruleobject.h"

#include <cmath>
#include <limits>
#include <QProcess>
#include <QStringList>

namespace RuleChecking {

namespace {
const char* const RULE_SUFFIX = "_changed";
const char* const KIND_WORDS[] = {"boolean", "float", "int", "int64", "selection", "string"};

struct Bounds
{
    double min;
    double max;
};

const Bounds TYPE_BOUNDS[] = {
    {0, 1},
    {std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max()},
    {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()},
    {double(std::numeric_limits<qint64>::min()), double(std::numeric_limits<qint64>::max())},
    {0, 0},
    {0, 0},
};

int kindOf(const QString& word)
{
    for (int kind = 0; kind < int(std::size(KIND_WORDS)); ++kind) {
        if (word == QLatin1String(KIND_WORDS[kind]))
            return kind;
    }
    return -1;
}

bool readItems(const QStringList& words, RuleObject* object)
{
    for (int i = 1; i < words.size(); ++i) {
        const QString number = words.at(i).section(QLatin1Char('='), 1);
        bool isKey = false;
        bool isValue = true;
        const int key = number.section(QLatin1Char(':'), 0, 0).toInt(&isKey);
        const double value =
            number.contains(QLatin1Char(':')) ? number.section(QLatin1Char(':'), 1).toDouble(&isValue) : key;
        if (!isKey || !isValue)
            return false;
        object->items.append({words.at(i).section(QLatin1Char('='), 0, 0), value, key});
        if (object->items.constLast().name == words.constFirst())
            object->current = i - 1;
    }
    return true;
}

bool readNumbers(const QStringList& words, RuleObject* object)
{
    double* const targets[] = {&object->number, &object->min, &object->max, &object->step};
    if (words.isEmpty() || words.size() == 2 || words.size() > int(std::size(targets)))
        return false;
    object->setUnbounded();
    for (int i = 0; i < words.size(); ++i) {
        bool isNumber = false;
        *targets[i] = words.at(i).toDouble(&isNumber);
        if (!isNumber)
            return false;
    }
    return object->min <= object->number && object->number <= object->max;
}

bool readValue(const QStringList& words, RuleObject* object)
{
    if (object->isNumber())
        return readNumbers(words, object);
    if (object->kind == RuleObject::SELECTION)
        return readItems(words, object);
    object->text = words.value(0);
    object->number = object->text == QLatin1String("true") ? 1 : 0;
    return words.size() <= 1;
}

QString withoutComment(const QString& line)
{
    return line.section(QLatin1Char('#'), 0, 0).trimmed();
}
} // namespace

bool RuleObject::needsRule() const
{
    return !ruleFunction.isEmpty() && ruleFunction != name + QLatin1String(RULE_SUFFIX);
}

int RuleObject::positionOf(int key) const
{
    for (int i = 0; i < items.size(); ++i) {
        if (items.at(i).key == key)
            return i;
    }
    return -1;
}

QString RuleObject::valueText() const
{
    if (kind == BOOLEAN)
        return number != 0 ? QStringLiteral("true") : QStringLiteral("false");
    if (kind == STRING)
        return QLatin1Char('"') + text + QLatin1Char('"');
    if (kind == SELECTION)
        return current < 0 ? QStringLiteral("without a current item") : items.at(current).name;
    return QString::number(number, 'g', std::numeric_limits<double>::digits10);
}

QVector<RuleObject> RuleObject::probes() const
{
    QVector<RuleObject> result{*this};
    const auto add = [this, &result](double value) {
        for (const RuleObject& probe : qAsConst(result)) {
            if (probe.number == value)
                return;
        }
        result.append(*this);
        result.last().number = value;
    };
    if (kind == BOOLEAN) {
        add(1 - number);
    } else if (kind == STRING) {
        for (const QString& other : {QString(), QStringLiteral("Probe text")}) {
            result.append(*this);
            result.last().text = other;
        }
    } else if (kind == SELECTION) {
        for (int i = 0; i < items.size(); ++i) {
            if (i == current)
                continue;
            result.append(*this);
            result.last().current = i;
        }
    } else if (isBounded()) {
        const double middle = min / 2 + max / 2;
        for (const double value : {min, kind == FLOAT ? middle : std::trunc(middle), max})
            add(value);
    } else {
        add(0);
        add(1);
    }
    return result;
}

void RuleObject::setUnbounded()
{
    min = TYPE_BOUNDS[kind].min;
    max = TYPE_BOUNDS[kind].max;
}

bool RuleObject::isNumber() const
{
    return kind == FLOAT || kind == INT || kind == INT64;
}

bool RuleObject::isBounded() const
{
    return min > TYPE_BOUNDS[kind].min && max < TYPE_BOUNDS[kind].max;
}

const RuleObject* RuleScope::find(const QString& objectName) const
{
    for (const RuleObject& object : objects) {
        if (object.name == objectName)
            return &object;
    }
    return nullptr;
}

bool readRuleObjects(const QString& text, RuleScope* scope, QString* error)
{
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        QStringList words = QProcess::splitCommand(withoutComment(lines.at(i)));
        if (words.isEmpty())
            continue;
        RuleObject object;
        const int kind = kindOf(words.takeFirst());
        object.kind = RuleObject::Kind(std::max(0, kind));
        object.name = words.isEmpty() ? QString() : words.takeFirst();
        object.ruleFunction = object.name + QLatin1String(RULE_SUFFIX);
        const int arrow = words.indexOf(QStringLiteral("->"));
        if (arrow >= 0) {
            object.ruleFunction = words.value(arrow + 1);
            words = words.mid(0, arrow);
        }
        if (kind < 0 || object.name.isEmpty() || !readValue(words, &object)) {
            *error =
                QStringLiteral("line %1 is no object: %2").arg(QString::number(i + 1), lines.at(i).trimmed());
            return false;
        }
        scope->objects.append(object);
    }
    return true;
}

} // namespace RuleChecking
