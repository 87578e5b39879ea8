#pragma once
// Refreshes features of a features page by name, in order, off the GUI
// thread; each record read goes out by a queued signal. It knows nothing of
// the page: the reader it is given reads a feature from the camera, and a
// page that closes retires it.
#include <functional>

#include "CFeatureListThread.h"
#include "CFeatureNodeInfo.h"

class CUpdateParamThread : public CFeatureListThread
{
    Q_OBJECT
public:
    // Reads a feature's record now (on the worker); invalid when it cannot.
    using Reader = std::function<CFeatureNodeInfo(const QString& name)>;

    explicit CUpdateParamThread(const Reader& read, QObject* parent = nullptr);

    // The list replaces the pending names as a whole.
    void SetPropertyList(const QList<QString>& names);
    // Adds names not already pending, after the pending ones (any thread).
    void appendPropertyList(const QList<QString>& names);
    // Takes the next pending name, or returns an empty string.
    QString getProperty();

signals:
    void nodeRead(CFeatureNodeInfo info);

protected:
    void pass() override;

private:
    const Reader m_read;
};
