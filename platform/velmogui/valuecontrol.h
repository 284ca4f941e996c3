#pragma once

#include <velmogui/velmogui_export.h>
#include <zubase/observable.h>

#include <functional>
#include <QObject>
#include <QString>

class QWidget;
class ValueBase;

namespace REPORTGENERATOR {
struct Field;
}

namespace VelmoGui {

/// The control of one value: shows it, follows its changes, and sets it when the user is done. Which kind of control
/// it is depends on the value: a check box, a combo box for what can be chosen, a spin box for whole numbers of 32
/// bits and for reals with a step, a list, or a line of text, in which numbers take a unit ("145.5M", "145,5 MHz");
/// all frequencies have a line. Return or leaving takes the text, Escape brings back the value; in a line the
/// keys Up and Down go by the step of the value.
///
/// What does not fit is not taken: it stays in the control, the reason is its tool tip and its description for screen
/// readers, and the value keeps what it has. A value that goes away leaves a disabled control. GUI thread only.
class VELMOGUI_EXPORT ValueControl : public QObject, public IObserver
{
    Q_OBJECT
public:
    /// \param value  not owned, may go before the control
    /// \param field  the field that the value stands for: its unit, names and range count, too; may be null
    /// \param name   for screen readers
    ValueControl(ValueBase* value, const REPORTGENERATOR::Field* field, const QString& name, QWidget* parent);
    ~ValueControl() override;

    /// What the user works with, and what carries the name and the focus. Qt owns it.
    QWidget* widget() const { return m_widget; }
    /// Null when it has gone. Not owned.
    ValueBase* value() const { return m_value; }
    /// Why the text in the control was not taken; empty if the value is what is shown.
    const QString& fault() const { return m_fault; }
    /// One more sentence for the tool tip and for screen readers; empty takes it away.
    void setNote(const QString& note);
    /// What can be seen, copied and reached, but not changed. At first it can be changed.
    void setReadOnly(bool readOnly);

    void Update(Observable* sender, TChangeCode code) override;

signals:
    /// The fault came, went or became another one.
    void faultChanged(const QString& fault);

private:
    void makeCheckBox(QWidget* parent);
    void makeComboBox(QWidget* parent);
    void makeSpinBox(QWidget* parent);
    void makeDoubleSpinBox(QWidget* parent);
    void makeList(QWidget* parent);
    void makeLineEdit(QWidget* parent);
    void showValue();
    void showHelp();
    bool revert();
    bool step(int steps);
    bool isFrequency() const;
    void commit(const QString& text);
    void commit(const std::function<bool(QString*)>& assign);
    void setFault(const QString& fault);
    QString unit() const;

    ValueBase* m_value; // Not owned; null when it has gone.
    const REPORTGENERATOR::Field* m_field;
    QWidget* m_widget = nullptr;
    std::function<void()> m_show; // Brings the value into the widget.
    QString m_fault;
    QString m_note;
    bool m_isCommitting = false;
    bool m_isReadOnly = false;
};

} // namespace VelmoGui
