#pragma once
// Everything the feature tree shows of one parameter node, read off the GUI
// thread in one go. The GUI builds and refreshes rows from these records and
// never reads a node itself. Texts are the camera's own; translation happens
// when a row is built.
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "Vorlen/GenICam/CInternalParameterNode.h"

class CFeatureNodeInfo
{
public:
    using Node = Vorlen::GenICam::CInternalParameterNode;

    struct SEntry
    {
        QString symbol;
        qulonglong value = 0;
        QString displayName;
        int visibility = 0;
        int nameSpace = 0;
        bool available = true;
    };

    bool valid = false;
    QString name;
    QString displayName;
    QString description;
    QStringList selectors;
    Node::EFeatureType type = Node::featureTypeNone;
    int representation = Node::representUndefined;
    int visibility = Node::visibilityUndefined;
    int nameSpace = Node::nameSpaceUndefined;
    bool available = false;
    bool readable = false;
    bool writeable = false;
    bool streamable = false;
    bool hasUnit = false;
    QString unit;

    bool valueOk = false;          // the value below was read
    qint64 intValue = 0;
    bool intRangeOk = false;
    qint64 intMin = 0, intMax = 0;
    bool intIncOk = false;
    qint64 intInc = 1;
    double floatValue = 0;
    bool floatRangeOk = false;
    double floatMin = 0, floatMax = 0;
    bool boolValue = false;
    QString stringValue;
    unsigned int maxStringLen = 0;
    QList<SEntry> entries;         // enumeration entries, shown ones only
    int currentEntry = -1;         // index into entries
    long regLength = 0;
    bool regLengthOk = false;
    bool commandDone = true;

    std::vector<CFeatureNodeInfo> children;   // filled by readTree only

    // Reads one node (no children). Does nothing but set valid = false for
    // an empty or invalid node.
    static CFeatureNodeInfo read(const Node* node);

    // Reads the node and, depth first in description order, every node below
    // it that the tree shows (Invisible nodes are left out with their
    // subtree). perNode is called after each node and stops the walk by
    // returning false. Returns false when the walk was stopped or a node
    // could not be reached because the camera is gone.
    static bool readTree(const Vorlen::Memory::TSharedPtr<Node>& node, CFeatureNodeInfo& out,
                         const std::function<bool()>& perNode);

    bool isCategory() const { return type == Node::featureTypeCategory || type == Node::featureTypeNone; }
    int nodeCount() const;

    // A number node's value (when asked for), range and increment, each with
    // whether the camera gave it; an increment counts only when above 0.
    template <class T>
    struct SNumber
    {
        bool valueOk = false, rangeOk = false, incrementOk = false;
        T value = 0, min = 0, max = 0, increment = 0;
    };
    static SNumber<long> readInt(const Node& node, bool withValue);
    static SNumber<double> readFloat(const Node& node, bool withValue, bool withIncrement);

    // Whether the last failed call of this thread means the camera is gone.
    static bool lastErrorMeansDeviceLost();
};
Q_DECLARE_METATYPE(CFeatureNodeInfo)
