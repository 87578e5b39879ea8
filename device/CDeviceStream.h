#pragma once
// The stream side of a device: the stream source made when the camera
// connects, and the StreamRetrieveThread that pulls its frames. Opening and
// closing run on the device's worker; the setters and statistics readers may
// be called from any thread.
#include <QString>
#include <memory>

#include "CGuardedPtr.h"
#include "StreamRetrieveThread.h"
#include "Vorlen/GenICam.h"

class CDeviceLinkSettings;

class CDeviceStream
{
public:
    // Makes the retrieval thread; on the configuration's (GUI) thread.
    CDeviceStream();
    // The thread must have been stopped, or handed over with takeThread().
    ~CDeviceStream();

    StreamRetrieveThread* thread() const { return m_thread.get(); }
    Vorlen::Memory::TSharedPtr<Vorlen::GenICam::CInternalStreamSource> source() const { return m_source.get(); }
    bool isGrabbing() const;

    // Worker, after the connection: the stream source, statistics reset.
    void create(const Vorlen::GenICam::ICameraPtr& camera);
    // Worker: hands the source and the camera to the retrieval thread,
    // starts it and then the grabbing with the settings applied. False
    // (logged) when it did not start; the thread is stopped again.
    bool open(const Vorlen::GenICam::ICameraPtr& camera, const CDeviceLinkSettings& settings);
    // Worker: stops the retrieval thread and the grabbing. False when there
    // is no stream source (logged): nothing was open to announce closed.
    bool close();
    // Worker: stops the retrieval thread and waits for it.
    void stopThread();
    // Worker: the thread stopped, the stream source released.
    void release();
    // Device destruction (GUI thread): the retrieval thread is cut off from
    // the configuration and moves to the worker that ends this object.
    void handOver(QThread* worker);

    void getStatistic(QString& receiveFps, QString& displayFps, unsigned long long& totalFrames, QString& bandwidth,
                      QString* errorText = nullptr, unsigned long long* errorCount = nullptr);
    bool getStatisticsInfo(Vorlen::GenICam::StreamStatisticsInfo& info) const;

private:
    std::unique_ptr<StreamRetrieveThread> m_thread;
    CGuardedPtr<Vorlen::GenICam::CInternalStreamSource> m_source;
};
