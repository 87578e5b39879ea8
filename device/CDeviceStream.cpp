#include "CDeviceStream.h"

#include "CConfiguration.h"
#include "CDeviceFeatures.h"
#include "CDeviceLinkSettings.h"
#include "Tavlog4cpp/TavLogMacros.h"

using namespace Vorlen::GenICam;
using StreamPtr = Vorlen::Memory::TSharedPtr<CInternalStreamSource>;

CDeviceStream::CDeviceStream() : m_thread(new StreamRetrieveThread()) {}

CDeviceStream::~CDeviceStream() = default;

bool CDeviceStream::isGrabbing() const
{
    const StreamPtr stream = source();
    return stream && stream->isGrabbing();
}

void CDeviceStream::create(const ICameraPtr& camera)
{
    const StreamPtr stream = Vorlen::Memory::makeShared<CInternalStreamSource>(camera, 0);
    if (!stream->resetStatisticsInfo())
        LOG_ERROR("resetStatisticsInfo fail. [%s]", CDeviceFeatures::errorText().constData());
    m_source.exchange(stream);
}

bool CDeviceStream::open(const ICameraPtr& camera, const CDeviceLinkSettings& settings)
{
    const StreamPtr stream = source();
    if (!stream)
    {
        LOG_ERROR("m_ptrStream.get() is NULL.");
        return false;
    }
    if (stream->isGrabbing())
    {
        LOG_ERROR("camera is already grabbing.");
        return false;
    }

    const CInternalCameraPtr internal = Vorlen::Memory::dynamicPointerCast<CInternalCamera>(camera);
    m_thread->setStream(stream);
    m_thread->setDevice(internal);
    bool installed = true;
    if (internal && internal->isDriverInstalled(installed))
        m_thread->setDriverInstalled(installed);
    else if (internal)
        LOG_ERROR("isDriverInstalled fail. [%s]", CDeviceFeatures::errorText().constData());

    long width = 0;
    long height = 0;
    if (CDeviceFeatures::call<CIntNode>(camera, "Width", "get", [&](CIntNode& n) { return n.getValue(width); }))
        m_thread->setWidthReg(width);
    if (CDeviceFeatures::call<CIntNode>(camera, "Height", "get", [&](CIntNode& n) { return n.getValue(height); }))
        m_thread->setHeightReg(height);
    m_thread->setCompressionModeJpeg(CDeviceFeatures::isCompressionModeJpeg(camera));

    m_thread->start(QThread::TimeCriticalPriority);
    settings.applyToStream(stream, camera->getType());

    if (!stream->startGrabbing())
    {
        LOG_ERROR("[%s]", CDeviceFeatures::errorText().constData());
        stopThread();
        return false;
    }
    return true;
}

bool CDeviceStream::close()
{
    LOG_DEBUG("begin closeStream.");
    const StreamPtr stream = source();
    stopThread();
    if (!stream)
    {
        LOG_ERROR("m_ptrStream.get() is NULL.");
        return false;
    }
    if (stream->isGrabbing() && !stream->stopGrabbing())
        LOG_ERROR("stopGrabbing fail. [%s]", CDeviceFeatures::errorText().constData());
    return true;
}

void CDeviceStream::stopThread()
{
    m_thread->stop();
    m_thread->wait();
}

void CDeviceStream::release()
{
    stopThread();
    m_thread->setStream(nullptr);
    m_thread->setDevice(nullptr);
    m_source.take();
}

void CDeviceStream::handOver(QThread* worker)
{
    if (CConfiguration* cfg = CConfiguration::getInstance())
        QObject::disconnect(cfg, nullptr, m_thread.get(), nullptr);
    m_thread->moveToThread(worker);
}

void CDeviceStream::getStatistic(QString& receiveFps, QString& displayFps, unsigned long long& totalFrames,
                                 QString& bandwidth, QString* errorText, unsigned long long* errorCount)
{
    StreamStatistic* statistic = m_thread->getStatistic();
    if (errorText && errorCount)
        statistic->getStatistic(receiveFps, displayFps, totalFrames, bandwidth, *errorText, *errorCount);
    else
        statistic->getStatistic(receiveFps, displayFps, totalFrames, bandwidth);
}

bool CDeviceStream::getStatisticsInfo(StreamStatisticsInfo& info) const
{
    const StreamPtr stream = source();
    return stream && stream->getStatisticsInfo(info);
}
