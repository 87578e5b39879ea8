#pragma once
// What the camera's description says about a feature: existence, access,
// kind, representation, visibility, names, unit, selectors and children.
// A query on a feature that cannot be resolved returns its fallback (false,
// empty, undefined) with the reason in the last error.
#include "CFeatureOperations.h"
#include "CNodeAccess.h"
#include "Vorlen/GenICam/CInternalParameterNode.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

class CNodeMetadata : public CFeatureOperations
{
public:
    using CFeatureOperations::CFeatureOperations;
    using Node = CInternalParameterNode;

    bool isValid() const;
    bool isImplemented() const;
    bool isAvailable() const;
    bool isReadable() const;
    bool isWriteable() const;
    bool isStreamable() const;
    Node::EFeatureType type() const;
    Node::ERepresent representation() const;
    Node::EVisibility visibility() const;
    Node::ENameSpace nameSpace() const;
    CString displayName() const;
    CString description() const;
    CString toolTip() const;
    bool unit(CString& unit) const;
    TVector<CString> selectors() const;
    TVector<CString> selected() const;
    bool children(TVector<Memory::TSharedPtr<Node>>& children) const;

    static Node::EVisibility visibilityOf(ArvGcVisibility visibility);
    static Node::ENameSpace nameSpaceOf(ArvGcNameSpace nameSpace);

private:
    // Runs read on the resolved feature, or returns fallback.
    template <class T, class Read>
    T describe(T fallback, Read read) const
    {
        CNodeAccess a(m_camera, m_name);
        if (!a)
            return fallback;
        a.succeed();
        return read(a);
    }
    // An "is it?" answer that Aravis may fail to give.
    template <class Ask>
    bool ask(Ask question) const
    {
        CNodeAccess a(m_camera, m_name);
        if (!a)
            return false;
        GError* e = nullptr;
        const bool yes = question(a.feature(), &e);
        return a.check(e, Infra::ERR_READ_FAILED) && a.succeed() && yes;
    }
};

} // namespace GenICam
} // namespace Vorlen
