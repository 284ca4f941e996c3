#include <velmogui/textlist.h>
#include <velmogui/valuecontrol.h>

#include <cmath>
#include <jobxml/valuetext.h>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
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
    return number < 0 ? item.GetName() : field->enumeration->guiText(number);
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

// Escape brings back what the value is.
class EscapeFilter : public QObject
{
public:
    EscapeFilter(const std::function<bool()>& revert, QObject* parent)
        : QObject(parent)
        , m_revert(revert)
    {
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        return event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
               m_revert();
    }

private:
    std::function<bool()> m_revert;
};
} // namespace

ValueControl::ValueControl(ValueBase* value, const REPORTGENERATOR::Field* field, const QString& name,
                           QWidget* parent)
    : QObject(parent)
    , m_value(value)
    , m_field(field)
{
    const auto* const real = dynamic_cast<NumericDouble*>(value);
    if (dynamic_cast<ValueBool*>(value))
        makeCheckBox(parent);
    else if (dynamic_cast<ValueSelection*>(value))
        makeComboBox(parent);
    else if (dynamic_cast<NumericInt*>(value))
        makeSpinBox(parent);
    else if (real && real->GetStep() > 0)
        makeDoubleSpinBox(parent);
    else if (dynamic_cast<StringList*>(value))
        makeList(parent);
    else
        makeLineEdit(parent);
    m_widget->setAccessibleName(name);
    if (auto* const list = qobject_cast<TextList*>(m_widget))
        list->setName(name);
    m_widget->installEventFilter(new WheelGuard(this));
    value->AddObserver(this);
    showValue();
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
    auto* const box = new QDoubleSpinBox(parent);
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
        if (m_value)
            static_cast<StringList*>(m_value)->SetItems(list->texts().toVector(), this);
    });
    m_show = [this, list] {
        list->setTexts(QStringList(static_cast<StringList*>(m_value)->GetItems().toList()));
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
    edit->installEventFilter(new EscapeFilter(
        [this, edit] {
            const bool isEdited = edit->isModified() || !m_fault.isEmpty();
            showValue();
            return isEdited;
        },
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

void ValueControl::commit(const QString& text)
{
    if (!m_value)
        return;
    QString reason;
    m_isCommitting = true;
    const bool isTaken = JobXml::assignText(m_value, m_field, text, &reason);
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
    m_widget->setAccessibleDescription(fault);
    emit faultChanged(fault);
}

QString ValueControl::unit() const
{
    const QString unit = m_field ? m_field->unit() : QString();
    return unit.isEmpty() ? unit : QLatin1Char(' ') + unit;
}

} // namespace VelmoGui
