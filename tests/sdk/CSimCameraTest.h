#pragma once
// Base of the test classes that run against simulated cameras: SIM001 on
// 127.0.0.1 and SIM002 on 127.0.0.2, found by discovery.
#include <QObject>

#include <string>

#include "SdkTestSupport.h"

class CSimCameraTest : public QObject
{
protected:
    // Starts count cameras (one or two); false with what is missing in error.
    bool startCameras(int count, std::string& error)
    {
        m_cam1 = SdkTest::startCamera(m_rig, "127.0.0.1", "SIM001", m_fake1, error);
        if (m_cam1 && count > 1)
            m_cam2 = SdkTest::startCamera(m_rig, "127.0.0.2", "SIM002", m_fake2, error);
        return m_cam1 && (count < 2 || m_cam2);
    }

    void disconnectAll()
    {
        for (const Vorlen::GenICam::ICameraPtr& c : {m_cam1, m_cam2})
            if (Vorlen::GenICam::CInternalCamera* camera = SdkTest::internal(c))
                camera->disConnect();
    }

    FakeCameraRig m_rig;
    int m_fake1 = -1, m_fake2 = -1;
    Vorlen::GenICam::ICameraPtr m_cam1, m_cam2;
};
