#pragma once

#include <QString>
#include <QVector>

namespace RuleChecking {

/// A scriptable object as the check of rules plays it: what its value holds, without a value. A plain value.
struct RuleObject
{
    enum Kind { BOOLEAN, FLOAT, INT, INT64, SELECTION, STRING };
    struct Item
    {
        QString name;
        double value;
        int key;
    };

    Kind kind = FLOAT;
    QString name;           ///< in the script
    QString ruleFunction;   ///< may be empty
    bool isGuessed = false; ///< kind from the script's own use of it; bounds and items are not known

    double number = 0; ///< the value; of a truth value 0 or 1
    double min = 0;
    double max = 0;
    double step = 0;
    QString text;
    QVector<Item> items;
    int current = -1; ///< position of the current item, -1: none
    bool isNormal = true;

    /// Whether the rule function is one that the object must have: kits name them all by convention,
    /// "NAME_changed", and a script has those that it needs.
    bool needsRule() const;
    /// Position of the first item of that key, -1 if there is none.
    int positionOf(int key) const;
    /// The value as findings name it.
    QString valueText() const;
    /// The object with each of the values that a probe gives it: its own, the ends of the range and the middle, or
    /// each key.
    QVector<RuleObject> probes() const;

    /// Bounds are as far as the type goes.
    void setUnbounded();
    bool isBounded() const;
    bool isNumber() const;
};

/// The objects that one setting registers.
struct RuleScope
{
    QString name; ///< of the receiver, may be empty
    QVector<RuleObject> objects;

    const RuleObject* find(const QString& objectName) const;
};

/// Reads a list of objects, one a line, for plug-ins that are not at hand:
///
///     float     Gain          30 -30 130        value, bounds and step, which may be left out
///     selection Demodulation  AM  AM=1 FM=2:15000   current item, items as NAME=KEY or NAME=KEY:VALUE
///     boolean   Squelch       true  -> squelchChanged   a rule function other than Squelch_changed
///
/// The kinds are boolean, float, int, int64, selection and string. Words with blanks stand in double quotes, "#" begins a
/// comment.
/// \param error  receives the reason with its line
bool readRuleObjects(const QString& text, RuleScope* scope, QString* error);

} // namespace RuleChecking
