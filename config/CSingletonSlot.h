#pragma once
// The place of one process-wide object (the configuration, the device
// manager, the discovery and disconnect-all workers). The application's
// singleton owner (CSingletonOwner, device/) opens every slot when it starts
// and closes them, in the reverse of their order, when it ends: only while a
// slot is open can its object be made (on first use, or by the owner), and
// once it is closed instance() returns null and nothing makes it again.
// Closing hands the object to the owner, which deletes it; a slot never
// deletes anything by itself. Thread-safe.
#include <mutex>

template <class T>
class CSingletonSlot
{
public:
    // The object; when there is none and the slot is open, create() makes it
    // (under the slot's lock: two threads never make two). Null while closed.
    template <class Create>
    static T* instance(Create create)
    {
        std::lock_guard<std::mutex> locker(s_mutex);
        if (!s_instance && s_open)
            s_instance = create();
        return s_instance;
    }
    // The object, never made here.
    static T* existing()
    {
        std::lock_guard<std::mutex> locker(s_mutex);
        return s_instance;
    }
    static void open()
    {
        std::lock_guard<std::mutex> locker(s_mutex);
        s_open = true;
    }
    // Closes the slot and hands its object (null when none was made) over.
    static T* close()
    {
        std::lock_guard<std::mutex> locker(s_mutex);
        s_open = false;
        T* instance = s_instance;
        s_instance = nullptr;
        return instance;
    }

private:
    static inline std::mutex s_mutex;   // standard, so that ThreadSanitizer sees it
    static inline T* s_instance = nullptr;
    static inline bool s_open = false;
};
