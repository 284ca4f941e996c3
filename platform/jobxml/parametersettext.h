#pragma once

#include <jobxml/jobxml_export.h>

#include <QString>
#include <QStringList>

class Node;

namespace REPORTGENERATOR {
struct Field;
} // namespace REPORTGENERATOR

namespace JobXml {

/// The one way between a value-tree node and the XML text of a parameter set. The node's id is the name of the set
/// ("ScanSettings"), the id of a value the path of a field below the set's element ("Range.Detail.Threshold"). Which
/// fields there are, and of which type, comes from the set's field table.
///
/// Values and fields go together by text, so a value need not have the field's own type:
/// - A selection stands for an enumeration or a text by the name of its item, for a number by the value of its item.
/// - A list of texts stands for a repeated simple field.
/// - Anything else stands for a single field whose text it can read.
/// What a set repeats as a whole group (signal descriptions, entries of a list) has no path: no value stands for it.
///
/// GUI thread only. Nothing is thrown.
class JOBXML_EXPORT ParameterSetText
{
public:
    /// What did not go from one side to the other. Ids and paths in the order of the node or of the set.
    struct JOBXML_EXPORT Report
    {
        QStringList valuesWithoutField; ///< ids in the node that name no field; all of it stayed where it was
        QStringList fieldsWithoutValue; ///< paths of the set that no value in the node stands for
        QStringList textsNotConverted;  ///< ids whose text the other side does not take
        QStringList
            valuesClamped; ///< ids whose value took the nearest bound of its range instead of the text
        QStringList
            problemsOfText; ///< line, column and reason of what a text holds that its own fields do not take
        QString failure;    ///< why nothing went over at all; empty if it could

        /// Whether every value found its field and every text was taken as it stood. A field without a value is no
        /// fault: receivers need not offer everything.
        bool isClean() const;
    };

    ParameterSetText() = delete;

    /// The set as the node has it: one element, with all that a valid one must have. Every value is written, also for
    /// optional fields, except that an empty text leaves a field unset that is not a text, and so does a value that
    /// does not convert, such as a selection without a current item.
    /// \param base    text of the same set that gives what the node has no value for, and which optional fields stay
    ///                unset while their value is the default; may be empty
    /// \param report  may be null; replaced
    /// \return a null string if the node's id is no parameter set or \p base is no text of that set
    static QString toText(const ::Node& node, const QString& base = QString(), Report* report = nullptr);

    /// Sets the node's values from the text; their observers are told. A value whose field the text does not set takes
    /// the field's default, a list becomes empty; an empty text sets no field. A value that does not take the text, or
    /// whose field has neither, stays as it is. Content that the node has no value for is in the text only: hand the
    /// text to toText() as base.
    /// \param report  may be null; replaced
    /// \return false, with the node as it was, if its id is no parameter set or the text is no text of that set
    static bool fromText(::Node& node, const QString& xml, Report* report = nullptr);

    /// The paths that a value of this set can have, in the order of the set; empty for an unknown name.
    static QStringList fieldPaths(const QString& parameterSetName);
    /// The field of a path; null if the set is not known or has no such path.
    static const REPORTGENERATOR::Field* field(const QString& parameterSetName, const QString& path);
};

} // namespace JobXml
