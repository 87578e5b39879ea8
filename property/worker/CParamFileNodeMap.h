#pragma once
// The camera's features as the parameter files see them: every feature
// below "Root" in description order with its type and selectors, plus the
// typed text form of a value (integers in decimal, decimals with full
// precision, booleans 1/0, enumerations by symbol, strings as they are).
// Used on the parameter-file workers only.
#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>

#include "Vorlen/GenICam.h"

class CParamFileNodeMap
{
public:
    struct SNode
    {
        QString name;
        int order = 0;           // position in description order
        int type = 0;            // CInternalParameterNode::EFeatureType
        QStringList selectors;   // features selecting this one
        bool isSelector = false;
    };

    explicit CParamFileNodeMap(const Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera>& camera);

    // Walks the node tree. keepGoing is asked between nodes; false stops the
    // walk and build() returns false, as does a tree that cannot be read.
    bool build(const std::function<bool()>& keepGoing = nullptr);
    const QList<SNode>& nodes() const { return m_nodes; }
    const SNode* find(const QString& name) const;

    // Features a file never carries from one camera to another: what
    // identifies the camera or its network link, and the control channel.
    static bool isExcluded(const QString& name);
    // Value types that files carry (integer, float, boolean, enumeration, string).
    static bool isValueType(int type);

    bool readValue(const QString& name, QString& text) const;
    // error: the camera's reason when it refuses.
    bool writeValue(const QString& name, const QString& text, QString& error) const;
    bool isReadWrite(const QString& name) const;
    // The values a selector can take now: available entries of an
    // enumeration, or every value of a small integer range.
    QStringList selectorValues(const QString& name) const;

private:
    void walk(const Vorlen::GenICam::CInternalParameterNode& node, const std::function<bool()>& keepGoing,
              bool& stopped);

    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::ICamera> m_camera;
    QList<SNode> m_nodes;
    QHash<QString, int> m_index;
};
