#include "LumidorResources.h"

#include <QtGlobal>

// Q_INIT_RESOURCE must be called from the global namespace.
static void initIcons() { Q_INIT_RESOURCE(lumidor_icons); }
static void initTranslations() { Q_INIT_RESOURCE(lumidor_translations); }

void initLumidorResources()
{
    initIcons();
    initTranslations();
}
