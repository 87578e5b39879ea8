#pragma once
// Helpers shared by the camera-library tests: finding simulated cameras,
// error texts, GVCP datagrams of the test's own.
#include <QByteArray>
#include <QString>
#include <QStringList>

#include <string>

// Before anything that includes <arv.h>: it keeps Qt's "signals" out of GLib.
#include "CAravisCamera.h"
#include "CUdpSocket.h"
#include "FakeCameraRig.h"
#include "Gvcp.h"
#include "Vorlen/GenICam.h"

namespace SdkTest {

using namespace Vorlen::GenICam;

inline ICameraPtr findBySerial(const TVector<ICameraPtr>& cameras, const char* serial)
{
    for (const ICameraPtr& c : cameras)
        if (c->getSerialNumber() == CString(serial))
            return c;
    return ICameraPtr();
}

// Starts a simulated camera and finds it by broadcast discovery. Null, with
// why in error, when either fails.
inline ICameraPtr startCamera(FakeCameraRig& rig, const char* address, const char* serial, int& index,
                              std::string& error)
{
    index = rig.start(address, serial);
    if (index < 0) {
        error = rig.lastError();
        return ICameraPtr();
    }
    TVector<ICameraPtr> cameras;
    CSystem::getInstance().discovery(cameras, typeGigEVision);
    ICameraPtr camera = findBySerial(cameras, serial);
    if (!camera)
        error = std::string("discovery did not find ") + serial + " on " + address;
    return camera;
}

inline CInternalCamera* internal(const ICameraPtr& camera)
{
    return dynamic_cast<CInternalCamera*>(camera.get());
}

inline QString lastErrorText()
{
    return QString(Vorlen::Infra::getErrMsg(Vorlen::Infra::getLastError()));
}

inline QStringList names(const TVector<CString>& list)
{
    QStringList out;
    for (const CString& s : list)
        out << QString::fromStdString(s.str());
    return out;
}

inline uint32_t ipOf(const char* text)
{
    uint32_t ip = 0;
    Gvcp::parseIp(text, ip);
    return ip;
}

inline QByteArray gvcpHeader(uint8_t flags, uint16_t command, uint16_t length, uint16_t id)
{
    QByteArray h(8, '\0');
    uint8_t* d = reinterpret_cast<uint8_t*>(h.data());
    d[0] = Gvcp::kKey;
    d[1] = flags;
    Gvcp::put16(d + 2, command);
    Gvcp::put16(d + 4, length);
    Gvcp::put16(d + 6, id);
    return h;
}

inline bool sendDatagram(CUdpSocket& socket, const char* ip, uint16_t port, const QByteArray& data)
{
    return socket.sendTo(ipOf(ip), port, reinterpret_cast<const uint8_t*>(data.constData()), size_t(data.size()));
}

// The next datagram within ms, empty when none came.
inline QByteArray receiveDatagram(CUdpSocket& socket, int ms, uint32_t* fromIp = nullptr, uint16_t* fromPort = nullptr)
{
    uint8_t buffer[2048];
    const int n = socket.receive(buffer, sizeof(buffer), ms, fromIp, fromPort);
    return n > 0 ? QByteArray(reinterpret_cast<const char*>(buffer), n) : QByteArray();
}

} // namespace SdkTest
