#include "CLoadPropertiesThread.h"

#include "CPropertyFeaturesForm.h"
#include "Tavlog4cpp/TavLogMacros.h"

CLoadPropertiesThread::CLoadPropertiesThread(CPropertyFeaturesForm* form) : m_pForm(form) {}

void CLoadPropertiesThread::run()
{
    LOG_DEBUG("CLoadPropertiesThread run begin");
    {
        QMutexLocker lock(&m_mutex);
        m_pForm->getProperty();
    }
    LOG_DEBUG("CLoadPropertiesThread run end");
}
