#include "rulerecorder.h"

#include <algorithm>
#include <cmath>
#include <QSet>
#include <QtScript/QScriptContext>
#include <QtScript/QScriptEngine>
#include <QtScript/QScriptString>

namespace RuleChecking {

namespace {
enum Role { VALUE, MIN, MAX, STEP, STATE, METHOD };
enum Method {
    NONE,
    ADD,
    REMOVE,
    SELECT,
    CLEAR,
    CURRENT_VALUE,
    CURRENT_NAME,
    CURRENT_KEY,
    COUNT,
    ITEM_VALUE,
    ITEM_NAME
};

constexpr unsigned bit(RuleObject::Kind kind)
{
    return 1U << kind;
}
constexpr unsigned FLOATS = bit(RuleObject::FLOAT) | bit(RuleObject::INT64);
constexpr unsigned NUMBERS = FLOATS | bit(RuleObject::INT);

struct Member
{
    const char* name;
    unsigned kinds; // bits
    Role role;
    Method method;
    int arguments;
};

const Member MEMBERS[] = {
    {"floatValue", FLOATS, VALUE, NONE, 0},
    {"floatMinValue", FLOATS, MIN, NONE, 0},
    {"floatMaxValue", FLOATS, MAX, NONE, 0},
    {"value", bit(RuleObject::INT), VALUE, NONE, 0},
    {"minValue", bit(RuleObject::INT), MIN, NONE, 0},
    {"maxValue", bit(RuleObject::INT), MAX, NONE, 0},
    {"boolValue", bit(RuleObject::BOOLEAN), VALUE, NONE, 0},
    {"stringValue", bit(RuleObject::STRING), VALUE, NONE, 0},
    {"stepValue", NUMBERS, STEP, NONE, 0},
    {"stateNormal", NUMBERS | bit(RuleObject::BOOLEAN), STATE, NONE, 0},
    {"AddItemToSelection", bit(RuleObject::SELECTION), METHOD, ADD, 3},
    {"RemoveItemFromSelection", bit(RuleObject::SELECTION), METHOD, REMOVE, 3},
    {"SelectItemByIndex", bit(RuleObject::SELECTION), METHOD, SELECT, 1},
    {"DeleteItems", bit(RuleObject::SELECTION), METHOD, CLEAR, 0},
    {"GetCurrentValue", bit(RuleObject::SELECTION), METHOD, CURRENT_VALUE, 0},
    {"GetCurrentName", bit(RuleObject::SELECTION), METHOD, CURRENT_NAME, 0},
    {"GetCurrentIndex", bit(RuleObject::SELECTION), METHOD, CURRENT_KEY, 0},
    {"GetItemCount", bit(RuleObject::SELECTION), METHOD, COUNT, 0},
    {"GetItemValue", bit(RuleObject::SELECTION), METHOD, ITEM_VALUE, 1},
    {"GetItemName", bit(RuleObject::SELECTION), METHOD, ITEM_NAME, 1},
};
constexpr uint MEMBER_COUNT = uint(std::size(MEMBERS));

const char* const CLASS_NAMES[] = {"ScriptableBoolean",      "ScriptableNumericFloat", "ScriptableNumericInt",
                                   "ScriptableNumericInt64", "ScriptableSelection",    "ScriptableString"};

// What every object has from elsewhere.
const QSet<QString> INHERITED{"toString",    "valueOf",   "hasOwnProperty",       "isPrototypeOf",
                              "constructor", "__proto__", "propertyIsEnumerable", "toLocaleString",
                              "objectName",  "prototype"};

constexpr double TWO_TO_31 = 2147483648.0;
constexpr double LARGEST_WHOLE = 1e18;
constexpr double TWO_TO_53 = 9007199254740992.0;

uint memberIndex(RuleObject::Kind kind, const QString& name)
{
    for (uint i = 0; i < MEMBER_COUNT; ++i) {
        if (name == QLatin1String(MEMBERS[i].name) && (MEMBERS[i].kinds & bit(kind)))
            return i;
    }
    return MEMBER_COUNT;
}

// Integers in full, as far as a number of the script can tell them apart.
QString numberText(double number)
{
    if (std::trunc(number) == number && std::fabs(number) <= LARGEST_WHOLE)
        return QString::number(qint64(number));
    return QString::number(number, 'g', std::numeric_limits<double>::digits10);
}

// "undefined", "null", "the text \"7\"", "an object"
QString describe(const QScriptValue& value)
{
    if (value.isString())
        return QStringLiteral("the text \"%1\"").arg(value.toString());
    if (value.isFunction())
        return QStringLiteral("a function");
    return value.isObject() ? QStringLiteral("an object") : value.toString();
}

bool fits(RuleObject::Kind kind, Role role, const QScriptValue& value)
{
    if (kind == RuleObject::STRING)
        return value.isString() || value.isNumber() || value.isBool();
    if (kind == RuleObject::BOOLEAN || role == STATE)
        return value.isBool() || value.isNumber();
    return value.isNumber() && !std::isnan(value.toNumber());
}

bool isCurrentChange(RuleObject* object, int position)
{
    return std::exchange(object->current, position) != position;
}
} // namespace

IRuleListener::~IRuleListener() = default;

RuleRecorder::RuleRecorder(QScriptEngine* engine, QVector<RuleObject>* objects, IRuleListener* listener)
    : QScriptClass(engine)
    , m_objects(objects)
    , m_listener(listener)
    , m_own(objects->size())
    , m_isCounted(objects->size(), false)
{
}

void RuleRecorder::publish()
{
    for (int i = 0; i < m_objects->size(); ++i)
        engine()->globalObject().setProperty(m_objects->at(i).name,
                                             engine()->newObject(this, QScriptValue(i)));
}

QStringList RuleRecorder::members(RuleObject::Kind kind)
{
    QStringList result;
    for (const Member& member : MEMBERS) {
        if (member.kinds & bit(kind))
            result.append(QLatin1String(member.name));
    }
    return result;
}

bool RuleRecorder::guessKind(const QString& member, RuleObject::Kind* kind)
{
    for (const RuleObject::Kind candidate : {RuleObject::FLOAT, RuleObject::INT, RuleObject::BOOLEAN,
                                             RuleObject::STRING, RuleObject::SELECTION}) {
        if (memberIndex(candidate, member) < MEMBER_COUNT) {
            *kind = candidate;
            return true;
        }
    }
    return false;
}

QString RuleRecorder::className(RuleObject::Kind kind)
{
    return QLatin1String(CLASS_NAMES[kind]);
}

QScriptClass::QueryFlags RuleRecorder::queryProperty(const QScriptValue& object, const QScriptString& name,
                                                     QueryFlags flags, uint* id)
{
    const QString word = name.toString();
    const int index = object.data().toInt32();
    if (INHERITED.contains(word))
        return {};
    *id = memberIndex(m_objects->at(index).kind, word);
    if (*id < MEMBER_COUNT || (flags & HandlesWriteAccess) || m_own.at(index).contains(word))
        return flags;
    const RuleObject& asked = m_objects->at(index);
    m_listener->found(
        RuleFinding::UNKNOWN_MEMBER, index, word,
        QStringLiteral("%1 is a %2 and has no \"%3\"").arg(asked.name, className(asked.kind), word));
    return {};
}

QScriptValue RuleRecorder::property(const QScriptValue& object, const QScriptString& name, uint id)
{
    const int index = object.data().toInt32();
    if (m_own.at(index).contains(name.toString()))
        return m_own.at(index).value(name.toString());
    const RuleObject& read = m_objects->at(index);
    m_listener->objectRead(index);
    switch (MEMBERS[id].role) {
    case VALUE:
        if (read.kind == RuleObject::STRING)
            return QScriptValue(read.text);
        return read.kind == RuleObject::BOOLEAN ? QScriptValue(read.number != 0) : QScriptValue(read.number);
    case MIN:
        return QScriptValue(read.min);
    case MAX:
        return QScriptValue(read.max);
    case STEP:
        return QScriptValue(read.step);
    case STATE:
        return QScriptValue(read.isNormal);
    case METHOD:
        break;
    }
    QScriptValue method = engine()->newFunction(callMethod, this);
    method.setData(QScriptValue(uint(index) * MEMBER_COUNT + id));
    return method;
}

void RuleRecorder::setProperty(QScriptValue& object, const QScriptString& name, uint id,
                               const QScriptValue& value)
{
    const int index = object.data().toInt32();
    const QString word = name.toString();
    const RuleObject& target = m_objects->at(index);
    if (id < MEMBER_COUNT && MEMBERS[id].role != METHOD) {
        write(index, id, value);
        return;
    }
    m_own[index].insert(word, value);
    RuleObject::Kind other = target.kind;
    if (id == MEMBER_COUNT && target.isGuessed && guessKind(word, &other))
        return;
    if (id < MEMBER_COUNT)
        found(RuleFinding::NOT_WRITABLE, index, id,
              QStringLiteral("%1.%2 is a method").arg(target.name, word));
    else
        m_listener->found(RuleFinding::LOST_WRITE, index, word,
                          QStringLiteral("%1 is a %2 and has no \"%3\" to write to")
                              .arg(target.name, className(target.kind), word));
}

QScriptValue RuleRecorder::callMethod(QScriptContext* context, QScriptEngine*, void* recorder)
{
    const uint code = context->callee().data().toUInt32();
    return static_cast<RuleRecorder*>(recorder)->call(int(code / MEMBER_COUNT), code % MEMBER_COUNT, context);
}

QScriptValue RuleRecorder::call(int index, uint member, QScriptContext* context)
{
    RuleObject& object = (*m_objects)[index];
    const int count = MEMBERS[member].arguments;
    const QString what = object.name + QLatin1Char('.') + QLatin1String(MEMBERS[member].name);
    if (context->argumentCount() < count) {
        found(RuleFinding::TOO_FEW_ARGUMENTS, index, member,
              QStringLiteral("%1 takes %2 arguments and gets %3")
                  .arg(what, QString::number(count), QString::number(context->argumentCount())));
        return context->throwError(QScriptContext::SyntaxError, QStringLiteral("too few arguments"));
    }
    if (count > 0 && !fits(RuleObject::INT, VALUE, context->argument(0)))
        found(RuleFinding::WRONG_TYPE, index, member,
              QStringLiteral("%1 takes a key and gets %2").arg(what, describe(context->argument(0))));
    const bool hasCurrent = object.current >= 0 && object.current < object.items.size();
    switch (MEMBERS[member].method) {
    case ADD:
        addItem(index, *context);
        break;
    case REMOVE:
        removeItem(index, *context);
        break;
    case SELECT:
        return select(index, *context);
    case CLEAR:
        deleteItems(index);
        break;
    case CURRENT_VALUE:
        return QScriptValue(hasCurrent ? object.items.at(object.current).value : 0.0);
    case CURRENT_NAME:
        return QScriptValue(hasCurrent ? object.items.at(object.current).name : QString());
    case CURRENT_KEY:
        return QScriptValue(hasCurrent ? object.items.at(object.current).key : -1);
    case COUNT:
        m_isCounted[index] = true;
        return QScriptValue(object.items.size());
    case ITEM_VALUE:
    case ITEM_NAME:
        return itemOf(index, member, context->argument(0).toInt32());
    case NONE:
        break;
    }
    return QScriptValue(QScriptValue::UndefinedValue);
}

QScriptValue RuleRecorder::select(int index, const QScriptContext& context)
{
    RuleObject& object = (*m_objects)[index];
    const int key = context.argument(0).toInt32();
    const int position = object.positionOf(key);
    const uint member = memberIndex(object.kind, QStringLiteral("SelectItemByIndex"));
    const bool isNumber = fits(RuleObject::INT, VALUE, context.argument(0));
    if (position >= 0 || object.isGuessed) {
        m_listener->valueWritten(index, position >= 0 && isCurrentChange(&object, position));
        return QScriptValue(QScriptValue::UndefinedValue);
    }
    if (key >= 0 && key < object.items.size() && isNumber)
        found(RuleFinding::POSITION_AS_KEY, index, member,
              QStringLiteral("%1 has no item of the key %2; the key of the item in that position is %3")
                  .arg(object.name, QString::number(key), QString::number(object.items.at(key).key)));
    else if (isNumber)
        found(RuleFinding::NO_SUCH_KEY, index, member,
              QStringLiteral("%1 has no item of the key %2").arg(object.name, QString::number(key)));
    return QScriptValue(QScriptValue::UndefinedValue);
}

// Who counts the items and asks for one that is in the list by position takes positions for keys.
QScriptValue RuleRecorder::itemOf(int index, uint member, int key)
{
    const RuleObject& object = m_objects->at(index);
    const int position = object.positionOf(key);
    if (position < 0 && m_isCounted.at(index) && key >= 0 && key < object.items.size())
        found(RuleFinding::POSITION_AS_KEY, index, member,
              QStringLiteral("%1 has no item of the key %2; the key of the item in that position is %3")
                  .arg(object.name, QString::number(key), QString::number(object.items.at(key).key)));
    if (MEMBERS[member].method == ITEM_NAME)
        return QScriptValue(position < 0 ? QString() : object.items.at(position).name);
    return QScriptValue(position < 0 ? 0.0 : object.items.at(position).value);
}

void RuleRecorder::addItem(int index, const QScriptContext& context)
{
    RuleObject& object = (*m_objects)[index];
    const int key = context.argument(0).toInt32();
    if (object.positionOf(key) >= 0)
        found(RuleFinding::DOUBLE_KEY, index, memberIndex(object.kind, QStringLiteral("AddItemToSelection")),
              QStringLiteral("%1 has an item of the key %2 already").arg(object.name, QString::number(key)));
    object.items.append({context.argument(1).toString(), context.argument(2).toNumber(), key});
}

void RuleRecorder::removeItem(int index, const QScriptContext& context)
{
    RuleObject& object = (*m_objects)[index];
    for (int i = 0; i < object.items.size(); ++i) {
        const RuleObject::Item& item = object.items.at(i);
        if (item.key != context.argument(0).toInt32() || item.name != context.argument(1).toString() ||
            item.value != context.argument(2).toNumber())
            continue;
        object.items.remove(i);
        const int former = object.current;
        if (former >= i)
            object.current = former == i ? -1 : former - 1;
        if (former == i)
            m_listener->valueWritten(index, true);
        return;
    }
}

// Told to everybody but the object itself.
void RuleRecorder::deleteItems(int index)
{
    (*m_objects)[index].items.clear();
    (*m_objects)[index].current = -1;
}

void RuleRecorder::write(int index, uint member, const QScriptValue& value)
{
    RuleObject& object = (*m_objects)[index];
    const Role role = MEMBERS[member].role;
    if (!fits(object.kind, role, value))
        found(RuleFinding::WRONG_TYPE, index, member,
              QStringLiteral("%1.%2 is given %3")
                  .arg(object.name, QLatin1String(MEMBERS[member].name), describe(value)));
    if (role == STATE) {
        object.isNormal = value.toBool();
    } else if (object.kind == RuleObject::STRING) {
        const QString text = value.isUndefined() || value.isNull() ? QString() : value.toString();
        m_listener->valueWritten(index, std::exchange(object.text, text) != text);
    } else if (object.kind == RuleObject::BOOLEAN) {
        setNumber(index, value.toBool() ? 1 : 0);
    } else if (std::isnan(value.toNumber()) && object.kind != RuleObject::FLOAT) {
        writeNumber(index, member, 0);
    } else if (!std::isnan(value.toNumber())) {
        writeNumber(index, member, value.toNumber());
    }
}

void RuleRecorder::writeNumber(int index, uint member, double wanted)
{
    RuleObject& object = (*m_objects)[index];
    const QString what = object.name + QLatin1Char('.') + QLatin1String(MEMBERS[member].name);
    const double number = asStored(index, member, wanted);
    const double former = object.number;
    switch (MEMBERS[member].role) {
    case MIN:
        object.min = number;
        object.max = std::max(object.max, number);
        break;
    case MAX:
        object.max = number;
        object.min = std::min(object.min, number);
        break;
    case STEP:
        if (number < 0)
            found(RuleFinding::OUT_OF_RANGE, index, member,
                  QStringLiteral("%1 is given %2").arg(what, numberText(number)));
        else
            object.step = number;
        return;
    default:
        if (number == wanted && (number < object.min || number > object.max))
            found(RuleFinding::OUT_OF_RANGE, index, member,
                  QStringLiteral("%1 is given %2, but goes from %3 to %4")
                      .arg(what, numberText(number), numberText(object.min), numberText(object.max)));
        setNumber(index, std::min(std::max(number, object.min), object.max));
        return;
    }
    object.number = std::min(std::max(former, object.min), object.max);
    if (object.number != former)
        m_listener->valueWritten(index, true);
}

// What an integer makes of the number, and of steps of integers.
double RuleRecorder::asStored(int index, uint member, double wanted)
{
    const RuleObject& object = m_objects->at(index);
    if (object.kind == RuleObject::FLOAT)
        return wanted;
    const QString given = QStringLiteral("%1.%2 is given %3")
                              .arg(object.name, QLatin1String(MEMBERS[member].name), numberText(wanted));
    const double whole = std::trunc(wanted);
    if (object.kind == RuleObject::INT && MEMBERS[member].role != STEP &&
        (whole >= TWO_TO_31 || whole < -TWO_TO_31)) {
        found(RuleFinding::WRAPS_AROUND, index, member, given);
        return QScriptValue(wanted).toInt32();
    }
    if (object.kind == RuleObject::INT64 && std::fabs(wanted) > TWO_TO_53) {
        found(RuleFinding::INEXACT, index, member, given);
        return wanted;
    }
    if (whole != wanted)
        found(RuleFinding::FRACTION_LOST, index, member, given);
    return whole;
}

void RuleRecorder::setNumber(int index, double value)
{
    m_listener->valueWritten(index, std::exchange((*m_objects)[index].number, value) != value);
}

void RuleRecorder::found(RuleFinding number, int index, uint member, const QString& text)
{
    m_listener->found(number, index, QLatin1String(MEMBERS[member].name), text);
}

} // namespace RuleChecking
