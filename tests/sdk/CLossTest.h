#pragma once
// Base of the camera-loss test classes: two simulated cameras started
// afresh for every test function (one of them is killed in each), and the
// loss watchdogs on a clock the test moves (see LossTestSupport.h).
#include <QObject>

#include "CSimCameraTest.h"
#include "LossTestSupport.h"

class CLossTest : public CSimCameraTest
{
    Q_OBJECT

protected slots:
    void initTestCase() { Vorlen::GenICam::CWatchdogClock::setCurrent(m_clock); }
    void init()
    {
        std::string error;
        QVERIFY2(startCameras(2, error), error.c_str());
    }
    void cleanup()
    {
        disconnectAll();
        m_rig.stopAll();
    }
    void cleanupTestCase() { Vorlen::GenICam::CWatchdogClock::setCurrent(nullptr); }

protected:
    std::shared_ptr<CManualWatchdogClock> m_clock = std::make_shared<CManualWatchdogClock>();
};
