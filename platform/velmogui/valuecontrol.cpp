#include <velmogui/textlist.h>
#include <velmogui/valuecontrol.h>

#include <cmath>
#include <jobxml/quantity.h>
#include <jobxml/valuetext.h>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>
#include <reportlayer/elementtable.h>
#include <values/value.h>
#include <values/valuelist.h>
#include <values/valuenumeric.h>
#include <values/valueselection.h>

namespace VelmoGui {

namespace {
constexpr int MOST_DECIMALS = 6;

// Decimals that a step needs.
int decimalsOf(double step)
{
    int decimals = step == 0 ? 2 : 0;
    for (double rest = step; decimals < MOST_DECIMALS && std::abs(rest - std::round(rest)) > 1e-9; rest *= 10)
        ++decimals;
    return decimals;
}

QString itemText(const SelectionItem& item, const REPORTGENERATOR::Field* field)
{
    const int number = field && field->enumeration ? field->enumeration->number(item.GetName()) : -1;
    if (number >= 0)
        return field->enumeration->guiText(number);
    return field ? JobXml::readableQuantity(item.GetName(), field->unit()) : item.GetName();
}

// A wheel over a form that is being scrolled must not change what it passes.
class WheelGuard : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* const widget = qobject_cast<QWidget*>(watched);
        const bool isPassing = event->type() == QEvent::Wheel && widget && !widget->hasFocus();
        if (isPassing)
            event->ignore();
        return isPassing;
    }
};

// Keys that belong to the control rather than to its widget.
class KeyFilter : public QObject
{
public:
    using Reaction = std::function<bool(int key)>; // Whether it took the key.

    KeyFilter(const Reaction& reaction, QObject* parent)
        : QObject(parent)
        , m_reaction(reaction)
    {
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        return event->type() == QEvent::KeyPress && m_reaction(static_cast<QKeyEvent*>(event)->key());
    }

private:
    Reaction m_reaction;
};

// Takes point and comma as decimal sign, whatever the locale.
class RealBox : public QDoubleSpinBox
{
public:
    using QDoubleSpinBox::QDoubleSpinBox;

    QValidator::State validate(QString& input, int& position) const override
    {
        input.replace(QLatin1Char('.'), locale().decimalPoint());
        input.replace(QLatin1Char(','), locale().decimalPoint());
        return QDoubleSpinBox::validate(input, position);
    }
};
} // namespace

ValueControl::ValueControl(ValueBase* value, const REPORTGENERATOR::Field* field, const QString& name,
                           QWidget* parent)
    : QObject(parent)
    , m_value(value)
    , m_field(field)
{
    const auto* const real = dynamic_cast<NumericDouble*>(value);
    const bool hasLine = isFrequency();
    if (dynamic_cast<ValueBool*>(value))
        makeCheckBox(parent);
    else if (dynamic_cast<ValueSelection*>(value))
        makeComboBox(parent);
    else if (!hasLine && dynamic_cast<NumericInt*>(value))
        makeSpinBox(parent);
    else if (!hasLine && real && real->GetStep() > 0)
        makeDoubleSpinBox(parent);
    else if (dynamic_cast<StringList*>(value))
        makeList(parent);
    else
        makeLineEdit(parent);
    m_widget->setAccessibleName(name);
    if (auto* const list = qobject_cast<TextList*>(m_widget))
        list->setName(name);
    m_widget->installEventFilter(new WheelGuard(this));
    m_widget->installEventFilter(
        new KeyFilter([this](int key) { return key == Qt::Key_Escape && revert(); }, this));
    value->AddObserver(this);
    showValue();
    showHelp();
}

ValueControl::~ValueControl()
{
    if (m_value)
        m_value->DeleteObserver(this);
}

void ValueControl::Update(Observable*, TChangeCode code)
{
    if (code == CHANGE_STATE && m_value && m_value->GetState() == STATE_LEAVING) {
        m_value = nullptr;
        m_widget->setEnabled(false);
    }
    if (!m_isCommitting)
        showValue();
    if (code == CHANGE_RANGE || code == CHANGE_ITEMS)
        showHelp();
}

void ValueControl::setNote(const QString& note)
{
    if (note == m_note)
        return;
    m_note = note;
    showHelp();
}

void ValueControl::setReadOnly(bool readOnly)
{
    m_isReadOnly = readOnly;
    if (auto* const edit = qobject_cast<QLineEdit*>(m_widget))
        edit->setReadOnly(readOnly);
    else if (auto* const box = qobject_cast<QAbstractSpinBox*>(m_widget))
        box->setReadOnly(readOnly);
    else if (auto* const list = qobject_cast<TextList*>(m_widget))
        list->setReadOnly(readOnly);
    else
        m_widget->setEnabled(!readOnly && m_value);
}

void ValueControl::makeCheckBox(QWidget* parent)
{
    auto* const box = new QCheckBox(parent);
    connect(box, &QCheckBox::toggled, this,
            [this](bool on) { commit(on ? QStringLiteral("true") : QStringLiteral("false")); });
    m_show = [this, box] { box->setChecked(static_cast<ValueBool*>(m_value)->GetValue()); };
    m_widget = box;
}

void ValueControl::makeComboBox(QWidget* parent)
{
    auto* const box = new QComboBox(parent);
    connect(box, QOverload<int>::of(&QComboBox::activated), this, [this](int position) {
        if (m_value)
            static_cast<ValueSelection*>(m_value)->SelectIndex(position, this);
    });
    m_show = [this, box] {
        const auto* const selection = static_cast<ValueSelection*>(m_value);
        box->clear();
        for (int i = 0; i < selection->GetItemCount(); ++i)
            box->addItem(itemText(*selection->GetItem(i), m_field));
        box->setCurrentIndex(selection->GetCurrentIndex());
    };
    m_widget = box;
}

void ValueControl::makeSpinBox(QWidget* parent)
{
    auto* const box = new QSpinBox(parent);
    box->setSuffix(unit());
    box->setKeyboardTracking(false);
    box->setGroupSeparatorShown(false);
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int number) { commit(QString::number(number)); });
    m_show = [this, box] {
        const auto* const number = static_cast<NumericInt*>(m_value);
        box->setRange(number->GetMin(), number->GetMax());
        box->setSingleStep(qMax(1, number->GetStep()));
        box->setValue(number->GetValue());
    };
    m_widget = box;
}

void ValueControl::makeDoubleSpinBox(QWidget* parent)
{
    auto* const box = new RealBox(parent);
    box->setSuffix(unit());
    box->setKeyboardTracking(false);
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this](double number) {
        if (m_value)
            static_cast<NumericDouble*>(m_value)->SetValue(number, this);
    });
    m_show = [this, box] {
        const auto* const number = static_cast<NumericDouble*>(m_value);
        box->setDecimals(decimalsOf(number->GetStep()));
        box->setRange(number->GetMin(), number->GetMax());
        box->setSingleStep(number->GetStep());
        box->setValue(number->GetValue());
    };
    m_widget = box;
}

void ValueControl::makeList(QWidget* parent)
{
    auto* const list = new TextList(parent);
    connect(list, &TextList::textsChanged, this, [this, list] {
        commit([this, list](QString* reason) {
            return JobXml::assignItems(static_cast<StringList*>(m_value), m_field, list->texts(), reason);
        });
    });
    m_show = [this, list] {
        list->setTexts(JobXml::readableItems(*static_cast<StringList*>(m_value), m_field));
    };
    m_widget = list;
}

void ValueControl::makeLineEdit(QWidget* parent)
{
    auto* const edit = new QLineEdit(parent);
    connect(edit, &QLineEdit::editingFinished, this, [this, edit] {
        if (edit->isModified())
            commit(edit->text());
    });
    edit->installEventFilter(new KeyFilter(
        [this](int key) { return (key == Qt::Key_Up && step(1)) || (key == Qt::Key_Down && step(-1)); },
        this));
    m_show = [this, edit] {
        const bool isText = dynamic_cast<ValueString*>(m_value) != nullptr;
        edit->setText(isText ? m_value->GetText() : JobXml::readableValue(*m_value, m_field));
        edit->setModified(false);
    };
    m_widget = edit;
}

void ValueControl::showValue()
{
    if (!m_value)
        return;
    {
        const QSignalBlocker blocker(m_widget);
        m_show();
    }
    setFault(QString());
}

// Why the value was not taken, the note, help, and what it may be.
void ValueControl::showHelp()
{
    QStringList lines;
    if (!m_fault.isEmpty())
        lines.append(m_fault);
    if (!m_note.isEmpty())
        lines.append(m_note);
    if (m_field && !m_field->help().isEmpty())
        lines.append(m_field->help());
    const QString range = m_value ? JobXml::readableRange(*m_value, m_field) : QString();
    if (!range.isEmpty())
        lines.append(range);
    m_widget->setToolTip(lines.join(QLatin1Char('\n')));
    m_widget->setWhatsThis(m_widget->toolTip());
    m_widget->setAccessibleDescription(lines.value(0));
}

// Whether there was something to bring back.
bool ValueControl::revert()
{
    const auto* const edit = m_widget->findChild<QLineEdit*>();
    const auto* const line = edit ? edit : qobject_cast<QLineEdit*>(m_widget);
    const bool isEdited = !m_fault.isEmpty() || (line && line->isModified());
    if (isEdited)
        showValue();
    return isEdited;
}

// Whether the value goes by steps.
bool ValueControl::step(int steps)
{
    const auto* const number = dynamic_cast<NumericView*>(m_value);
    if (!number || number->GetDoubleStep() <= 0 || m_isReadOnly)
        return false;
    const double wanted = number->GetDoubleValue() + steps * number->GetDoubleStep();
    commit(ValueText::fromDouble(qBound(number->GetDoubleMin(), wanted, number->GetDoubleMax())));
    return true;
}

void ValueControl::commit(const QString& text)
{
    commit([this, text](QString* reason) { return JobXml::assignText(m_value, m_field, text, reason); });
}

void ValueControl::commit(const std::function<bool(QString*)>& assign)
{
    if (!m_value)
        return;
    const QPointer<ValueControl> self(this); // Who hears of the change may close the editor.
    QString reason;
    m_isCommitting = true;
    const bool isTaken = assign(&reason);
    if (!self)
        return;
    m_isCommitting = false;
    if (isTaken)
        showValue();
    else
        setFault(reason);
}

void ValueControl::setFault(const QString& fault)
{
    if (fault == m_fault)
        return;
    m_fault = fault;
    showHelp();
    emit faultChanged(fault);
}

bool ValueControl::isFrequency() const
{
    return m_field && m_field->unit() == QLatin1String("Hz");
}

QString ValueControl::unit() const
{
    const QString unit = m_field ? m_field->unit() : QString();
    return unit.isEmpty() ? unit : QLatin1Char(' ') + unit;
}

} // namespace VelmoGui
