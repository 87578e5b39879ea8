#pragma once
// Checked access to one feature of a connected camera's node map. The
// constructor resolves the feature under the camera's lock, checks that it
// may be used as asked (read, written, or only described) and that it is of
// the kind the operation needs; every failure, there and after, lands in the
// calling thread's last error with the feature's name. The lock is held for
// as long as the object lives. Every parameter-node operation goes through
// one of these. A camera found lost fails the access at once, and every
// failure after its loss reports the loss, whatever Aravis made of it.
#include <mutex>

#include "CCameraLock.h"
#include <string>

#include "CAravisCamera.h"
#include "Vorlen/GenICam/CInternalParameterNode.h"
#include "Vorlen/Infra/Error.h"

namespace Vorlen {
namespace GenICam {

class CNodeAccess
{
public:
    enum EUse
    {
        useDescribe,   // metadata, ranges, entries: the feature need only exist
        useRead,       // implemented, available and not write-only
        useWrite       // implemented, available, not locked and not read-only
    };

    // The kind of node an operation works on, and what a mismatch says.
    struct SKind
    {
        bool (*matches)(ArvGcNode* node);
        const char* mismatch;
    };
    // Integers (reading works on an enumeration's value too), integers
    // proper, floats (not integers read as floats), booleans, strings,
    // enumerations, registers, commands.
    static const SKind kInteger, kPlainInteger, kFloat, kBoolean, kString, kEnumeration, kRegister, kCommand;

    CNodeAccess(const Memory::TSharedPtr<ICamera>& camera, const CString& name, EUse use = useDescribe,
                const SKind* kind = nullptr);
    CNodeAccess(const CNodeAccess&) = delete;
    CNodeAccess& operator=(const CNodeAccess&) = delete;

    // True when the feature was resolved and passed every check.
    explicit operator bool() const { return m_ok; }

    ArvGcNode* node() const { return m_node; }
    ArvGcFeatureNode* feature() const { return ARV_GC_FEATURE_NODE(m_node); }
    CAravisCamera* camera() const { return m_camera; }
    const CString& name() const { return m_name; }

    // True when e is null; otherwise consumes it, sets the last error it
    // maps to (fallback for errors without a closer code; the camera's loss
    // once it is lost) and returns false.
    bool check(GError*& e, int fallback) const;
    // Sets the last error to code, detailed by the feature name and more.
    bool fail(int code, const std::string& more = std::string()) const;
    // Clears the last error; true.
    bool succeed() const;
    // Reads one value: get(GError**) is Aravis' call; on success out takes
    // its result and the last error is cleared.
    template <class T, class Get>
    bool read(T& out, Get get, int fallback = Infra::ERR_READ_FAILED) const
    {
        GError* e = nullptr;
        const auto value = get(&e);
        if (!check(e, fallback))
            return false;
        out = T(value);
        return succeed();
    }
    // Writes: set(GError**) is Aravis' call; on success the change is
    // published (written()).
    template <class Set>
    bool write(Set set) const
    {
        GError* e = nullptr;
        set(&e);
        return check(e, Infra::ERR_WRITE_FAILED) && written();
    }
    // After a successful write: tells the camera's subscribers which
    // features may have changed with it, then succeed().
    bool written() const;

    static CInternalParameterNode::EFeatureType typeOf(ArvGcNode* node);
    // Property child of a node (ToolTip, Streamable, pValue, ...), or null.
    static ArvGcPropertyNode* property(ArvGcNode* node, ArvGcPropertyNodeType type);
    // ERR_OK when the node may be read (written) now, else why not.
    static int readability(ArvGcNode* node);
    static int writability(ArvGcNode* node);

private:
    bool resolve(EUse use, const SKind* kind);
    static int usability(ArvGcNode* node, bool forWrite);

    const Memory::TSharedPtr<ICamera>& m_cameraPtr;
    const CString& m_name;
    CAravisCamera* m_camera = nullptr;
    std::unique_lock<CCameraLock> m_lock;
    ArvGcNode* m_node = nullptr;
    bool m_ok = false;
};

} // namespace GenICam
} // namespace Vorlen
