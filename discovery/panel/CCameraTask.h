#pragma once
// Runs one camera round trip (force IP, a feature write, an XML download) on
// a short-lived thread of its own, so that the GUI thread never waits on a
// camera. The result and the camera library's error text of that thread come
// back to `done` on the context object's thread; when the context is gone by
// then, the result is dropped.
#include <QObject>
#include <QString>
#include <functional>

class CCameraTask
{
public:
    using Work = std::function<bool()>;
    using Done = std::function<void(bool ok, const QString& errorText)>;

    static void run(QObject* context, Work work, Done done);
    // Tasks started and not yet finished (tests wait for 0 before tearing down).
    static int running();
};
