#pragma once
// Turns parameter-node records into rows of the feature tree: which manager
// (and so which editor) a node gets, its label, range, step, decimals,
// availability, range warning and HTML tooltip. Runs on the GUI thread and
// reads the translation tables there.
#include <QCoreApplication>
#include <QMap>
#include <QString>

#include "CFeatureNodeInfo.h"

class QtProperty;
class QtGroupPropertyManager;
class QtDoublePropertyManager;
class QtEnumPropertyManager;
class QtStringPropertyManager;
class DecoratedDoublePropertyManager;

// HTML pieces of the tooltips.
extern const char* const kFmtBoldStart;
extern const char* const kFmtBoldEnd;
extern const char* const kFmtNewLine;
extern const char* const kFmtNormalStart;
extern const char* const kFmtNormalEnd;
// Icon of a value outside its range.
extern const char* const kRangeWarningIcon;

class CFeatureTreeBuilder
{
    Q_DECLARE_TR_FUNCTIONS(CFeatureTreeBuilder)
public:
    // The eight managers of a feature tree.
    struct SManagers
    {
        QtGroupPropertyManager* group = nullptr;
        QtDoublePropertyManager* integer = nullptr;
        QtDoublePropertyManager* floating = nullptr;
        DecoratedDoublePropertyManager* decFloating = nullptr;
        QtEnumPropertyManager* enumeration = nullptr;
        QtEnumPropertyManager* boolean = nullptr;
        QtStringPropertyManager* string = nullptr;
        QtStringPropertyManager* command = nullptr;
    };

    // Label of rows: translated display names, or the raw feature names.
    static void setTranslated(bool translated);
    static bool isTranslated();

    // The dispatcher: builds the row of the node under parent (if any), then
    // the rows of its children. Returns the row, null when none was made
    // (invalid or Invisible node, unknown type).
    static QtProperty* getGenProperty(const CFeatureNodeInfo& node, const SManagers& managers, QtProperty* parent);

    static QtProperty* addGroupProperty(const CFeatureNodeInfo& node, QtGroupPropertyManager* manager);
    static QtProperty* addIntProperty(const CFeatureNodeInfo& node, QtDoublePropertyManager* manager);
    static QtProperty* addSpecialIntProperty(const CFeatureNodeInfo& node, QtStringPropertyManager* manager,
                                             int represent);
    static QtProperty* addDoubleProperty(const CFeatureNodeInfo& node, QtDoublePropertyManager* manager);
    static QtProperty* addDecDoubleProperty(const CFeatureNodeInfo& node, DecoratedDoublePropertyManager* manager);
    static QtProperty* addEnumProperty(const CFeatureNodeInfo& node, QtEnumPropertyManager* manager);
    static QtProperty* addBoolProperty(const CFeatureNodeInfo& node, QtEnumPropertyManager* manager);
    static QtProperty* addStringProperty(const CFeatureNodeInfo& node, QtStringPropertyManager* manager);
    static QtProperty* addCommandProperty(const CFeatureNodeInfo& node, QtStringPropertyManager* manager);
    static QtProperty* addRegProperty(const CFeatureNodeInfo& node, QtStringPropertyManager* manager);

    // Tooltip of an enumeration or boolean, entries included.
    static void genEnumToolTip(const CFeatureNodeInfo& node, QString& out);
    // Tooltip of any other node, in the common order.
    static QString genToolTip(const CFeatureNodeInfo& node);
    // Tooltip and txtTag of a row from its node; a value row outside its
    // range shows the warning instead, txtTag keeps the full text.
    static void updateToolTip(const CFeatureNodeInfo& node, QtProperty* property);
    // Value, range, availability and enabled state of a row from its node.
    static void updatePropertyDisp(const CFeatureNodeInfo& node, QtProperty* property, const SManagers& managers);
    // Name, enumeration names and tooltip again, after a language switch or
    // the translate button.
    static void retranslateRow(const CFeatureNodeInfo& node, QtProperty* property, const SManagers& managers);

    static QString nodeLabel(const CFeatureNodeInfo& node);
    static QStringList enumNames(const CFeatureNodeInfo& node);
    static QStringList boolNames(const QString& featureName);
    // Texts of the "Any" value table ("{Not Available}", "{Command}", ...),
    // the text itself when the table has none.
    static QString anyValueText(const QString& text);
    // An entry symbol in the user's language through the feature's value table.
    static QString valueText(const QString& featureName, const QString& symbol);
    // Integer text of an IPv4 (dotted) or MAC (12 upper-case hex digits) value.
    static QString specialIntText(qint64 value, int represent);
    static bool isOutOfRange(const CFeatureNodeInfo& node);
};

// Writes to an enumeration node the entry whose symbol, or whose text in
// valueMap (the feature's value table), is text; nothing when none matches.
// Safe on any thread: it reads only the node and the given table.
bool setPropertyEnum(Vorlen::GenICam::CInternalParameterNode* node, const QString& text,
                     const QMap<QString, QString>& valueMap);
