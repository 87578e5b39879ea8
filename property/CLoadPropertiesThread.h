#pragma once
// Builds the feature tree of a features form once, off the GUI thread.
#include <QMutex>
#include <QThread>

class CPropertyFeaturesForm;

class CLoadPropertiesThread : public QThread
{
    Q_OBJECT
public:
    explicit CLoadPropertiesThread(CPropertyFeaturesForm* form);

protected:
    void run() override;

private:
    CPropertyFeaturesForm* m_pForm;   // not owned
    QMutex m_mutex;
};
