#include "StreamRetrieveThread.h"

#include <QByteArray>
#include <QElapsedTimer>

#include "CConfiguration.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Utils.h"
#include "Vorlen/Infra/Error.h"
#include "Vorlen/Infra/TVector.h"

using namespace Vorlen::GenICam;

namespace {
const char* const kBufferOverride = "WARN_BUFFER_OVERRIDE";
const char* const kNotSupportedImageFormat = "NOT SUPPORTED IMAGE FORMAT";
}

void registerFrameMetaTypes()
{
    qRegisterMetaType<CQtHybridFramePtr>("CQtHybridFramePtr");
    qRegisterMetaType<CQtHybridFramePtr>("QSharedPointer<Gliv::CQtHybridFrame>");
}

StreamRetrieveThread::StreamRetrieveThread(QObject* parent) : QThread(parent)
{
    registerFrameMetaTypes();
    m_clock.start();
    // Direct: the configuration emits on the GUI thread, so the snapshot is
    // always rebuilt there, whatever thread this object is moved to.
    // Without a configuration (outside the application's lifetime) the
    // built-in defaults apply.
    if (CConfiguration* cfg = CConfiguration::getInstance())
    {
        connect(cfg, &CConfiguration::signalSaveConfigChanged, this, &StreamRetrieveThread::onSaveConfigChanged,
                Qt::DirectConnection);
        connect(cfg, &CConfiguration::signalDisplayConfigChanged, this, &StreamRetrieveThread::onDisplayConfigChanged,
                Qt::DirectConnection);
        connect(cfg, &CConfiguration::signalRestoreCfg, this, &StreamRetrieveThread::onRestoreCfg,
                Qt::DirectConnection);
    }
    refreshSettings(true);
}

StreamRetrieveThread::~StreamRetrieveThread()
{
    stop();
    wait();
}

void StreamRetrieveThread::setStream(const Vorlen::Memory::TSharedPtr<CInternalStreamSource>& stream)
{
    std::lock_guard<std::mutex> locker(m_streamMutex);
    m_pStream = stream;
}

void StreamRetrieveThread::setDevice(const Vorlen::Memory::TSharedPtr<CInternalCamera>& camera)
{
    std::lock_guard<std::mutex> locker(m_streamMutex);
    m_pCamera = camera;
}

Vorlen::Memory::TSharedPtr<CInternalStreamSource> StreamRetrieveThread::streamSource()
{
    std::lock_guard<std::mutex> locker(m_streamMutex);
    return m_pStream;
}

void StreamRetrieveThread::Init()
{
    {
        std::lock_guard<std::mutex> locker(m_saveMutex);
        m_bForceRearm = true;
    }
    resetRecordStatistics();
}

void StreamRetrieveThread::stop()
{
    m_bRunning = false;
    // Also covers a stop() that comes before run() has set the flag.
    if (isRunning())
        requestInterruption();
}

void StreamRetrieveThread::setDisplayFPS(int fps)
{
    m_statistic.setDisplayFPS(fps);
    m_displayCounter.setDisplayFPS(fps);
}

void StreamRetrieveThread::run()
{
    LOG_DEBUG("StreamRetrieveThread run begin");
    m_bRunning = true;
    m_statistic.reset();
    m_displayCounter.reset();

    while (m_bRunning && !isInterruptionRequested())
    {
        Vorlen::Memory::TSharedPtr<CInternalStreamSource> stream = streamSource();
        if (!stream)
        {
            LOG_ERROR("m_pStream is null. StreamRetrieveThread will stop");
            break;
        }

        CFrame frame;
        const bool got = stream->getFrame(frame, 100);
        // The last error belongs to getFrame; take it before anything else runs.
        const int errorCode = Vorlen::Infra::getLastError();
        const QString error = GetErrorDesc();
        if (got)
            addFrame(frame);
        frame.reset();
        // Started just before startGrabbing, or the grab was stopped under
        // us: getFrame returns at once, so do not spin.
        if (!got && errorCode == Vorlen::Infra::ERR_STREAM_NOT_OPEN)
            msleep(5);

        // Checked whether or not a frame came: a timeout can carry a stream error.
        if (!error.isEmpty() && error != QLatin1String(kBufferOverride))
        {
            m_statistic.setError(error);
            m_statistic.setErrorCount(stream->getLostFrameCount());
        }
    }

    LOG_DEBUG("StreamRetrieveThread run end");
}

void StreamRetrieveThread::addFrame(CFrame& frame)
{
    if (!frame.valid())
        return;

    Vorlen::Infra::TVector<CFrame::EPayloadType> types;
    frame.getPayLoadTypes(types);

    // One snapshot for the whole frame: a change applies from the next frame.
    const std::shared_ptr<const SStreamSettings> settings = m_settings.get();
    bool isImage = false;
    int payloadType = CFrame::payloadImage;
    QByteArray chunkText;
    for (CFrame::EPayloadType type : types)
    {
        if (type == CFrame::payloadImage || type == CFrame::payloadJPEG)
        {
            isImage = true;
            payloadType = type;
            m_statistic.rcvNewFrame(frame);
        }
        else if (type == CFrame::payloadChunkData && settings->showChunkData)
        {
            const uint32_t count = frame.getChunkCount();
            for (uint32_t i = 0; i < count; ++i)
            {
                uint32_t id = 0;
                Vorlen::Infra::TVector<Vorlen::Infra::CString> lines;
                if (!frame.getChunkDataByIndex(i, id, lines))
                    continue;
                for (const auto& line : lines)
                {
                    chunkText.append(line.c_str());
                    chunkText.append('\n');
                }
            }
        }
    }

    if (!isImage)
        return;

    m_bDisplay = m_displayCounter.isTimeToDisplay(frame.getImageTimeStamp());
    m_bSave = isTimeToSaveImage(*settings, frame.getImageSize(), m_clock.elapsed());
    emit signalGetRecordEnable();
    m_bRecord = m_bRecordEnable;

    if (!m_bDisplay && !m_bSave && !m_bRecord)
    {
        frame.reset();
        std::lock_guard<std::mutex> locker(m_recordMutex);
        ++m_nProcessedFrames;
        return;
    }

    if (m_bCompressionModeJpeg)
        payloadType = CFrame::payloadJPEG;

    if (!Gliv::CQtHybridFrame::isSupportedPixelFormat(frame.getImagePixelFormat(), payloadType))
    {
        frame.reset();
        m_statistic.setError(QLatin1String(kNotSupportedImageFormat));
        std::lock_guard<std::mutex> locker(m_recordMutex);
        ++m_nProcessedFrames;
        return;
    }

    Gliv::SFrameInfo info;
    info.blockId = frame.getBlockId();
    info.imageSize = frame.getImageSize();
    info.height = frame.getImageHeight();
    info.width = frame.getImageWidth();
    info.widthReg = m_nWidthReg;
    info.heightReg = m_nHeightReg;
    info.paddingX = frame.getImagePadddingX();
    info.paddingY = frame.getImagePadddingY();
    info.payloadType = payloadType;
    info.pixelFormat = frame.getImagePixelFormat();
    info.rawData = frame.getImage();
    info.driverInstalled = m_bDriverInstalled;
    // Fixed for the life of the frame: a later demosaicing change applies
    // to the frames built after it.
    info.demosaic = settings->demosaic;

    // The hybrid frame copies the raw data here; the camera buffer then goes
    // straight back to the stream. Saving and recording need the full
    // resolution image, so convert those frames now, on this thread; a frame
    // that is only displayed is drawn from its raw data at the size shown.
    QElapsedTimer convertTimer;
    convertTimer.start();
    CQtHybridFramePtr hybrid(new Gliv::CQtHybridFrame(info));
    frame.reset();
    if (m_bSave || m_bRecord)
        hybrid->getConvertedData();
    const qint64 convertNs = convertTimer.nsecsElapsed();
    if (m_conversionObserver)
        m_conversionObserver(convertNs);

    if (!chunkText.isEmpty())
        hybrid->setChunkData(chunkText.constData());

    const bool display = m_bDisplay;
    const bool save = m_bSave;
    const bool record = m_bRecord;
    if (display)
    {
        m_statistic.increaseDisplayFrame();
        emit increaseDisplayFrame();
    }
    emit newFrame(hybrid, display, save, record);

    std::lock_guard<std::mutex> locker(m_recordMutex);
    ++m_nProcessedFrames;
    if (record)
        ++m_nRecordedFrames;
}

void StreamRetrieveThread::onSaveConfigChanged()
{
    refreshSettings(true);
}

void StreamRetrieveThread::onDisplayConfigChanged()
{
    refreshSettings(false);
}

void StreamRetrieveThread::onRestoreCfg()
{
    refreshSettings(true);
}

void StreamRetrieveThread::refreshSettings(bool rearmSave)
{
    const CConfiguration* cfg = CConfiguration::getInstance();
    publishSettings(cfg ? SStreamSettings::fromConfiguration(*cfg) : SStreamSettings(), rearmSave);
}

void StreamRetrieveThread::publishSettings(SStreamSettings settings, bool rearmSave)
{
    std::lock_guard<std::mutex> locker(m_publishMutex);
    const unsigned long long generation = m_settings.get()->saveGeneration;
    settings.saveGeneration = rearmSave ? generation + 1 : generation;
    m_displayCounter.setDisplayRate(settings.displayRate);
    m_settings.set(settings);
}

void StreamRetrieveThread::setSaveType(int type, int value)
{
    SStreamSettings settings = *m_settings.get();
    settings.saveType = type;
    settings.saveValue = value;
    publishSettings(settings, true);
}

bool StreamRetrieveThread::isTimeToSaveImage(unsigned long long imageSize)
{
    return isTimeToSaveImage(*m_settings.get(), imageSize, m_clock.elapsed());
}

bool StreamRetrieveThread::isTimeToSaveImage(unsigned long long imageSize, qint64 nowMs)
{
    return isTimeToSaveImage(*m_settings.get(), imageSize, nowMs);
}

bool StreamRetrieveThread::isTimeToSaveImage(const SStreamSettings& settings, unsigned long long imageSize,
                                             qint64 nowMs)
{
    if (!m_bSaveImageEnable)
        return false;

    std::lock_guard<std::mutex> locker(m_saveMutex);
    if (m_bForceRearm || settings.saveGeneration != m_nArmedGeneration)
    {
        // New rule or value, or a new stream: start over.
        m_bForceRearm = false;
        m_nArmedGeneration = settings.saveGeneration;
        m_nSaveCounter = 0;
        m_bSaveArmed = true;
        m_nLastSaveMs = 0;
        m_nSaveWaitMs = 0;
    }
    const int value = settings.saveValue;
    switch (settings.saveType)
    {
    case saveOneOutOf:
    {
        if (value < 1)
            return false;
        const bool save = (m_nSaveCounter % static_cast<unsigned long long>(value)) == 0;
        ++m_nSaveCounter;
        return save;
    }
    case saveMaxRate:
    {
        if (value < 0)
            return false;
        if (m_bSaveArmed || nowMs - m_nLastSaveMs >= value)
        {
            m_bSaveArmed = false;
            m_nLastSaveMs = nowMs;
            return true;
        }
        return false;
    }
    case saveAverageThroughput:
    {
        if (m_bSaveArmed || nowMs - m_nLastSaveMs > m_nSaveWaitMs)
        {
            m_bSaveArmed = false;
            // Time this frame takes at the allowed rate: bytes * 8 bits, in
            // ms at rate * 2^20 bits per second.
            if (value != 0)
                m_nSaveWaitMs = (static_cast<qint64>(imageSize) * 8000 / value) >> 20;
            m_nLastSaveMs = nowMs;
            return true;
        }
        return false;
    }
    default:
        return true;
    }
}

void StreamRetrieveThread::getRecordStatistics(unsigned long long& processed, unsigned long long& recorded)
{
    std::lock_guard<std::mutex> locker(m_recordMutex);
    processed = m_nProcessedFrames;
    recorded = m_nRecordedFrames;
}

void StreamRetrieveThread::resetRecordStatistics()
{
    std::lock_guard<std::mutex> locker(m_recordMutex);
    m_nProcessedFrames = 0;
    m_nRecordedFrames = 0;
}
