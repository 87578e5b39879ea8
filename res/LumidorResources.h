#pragma once
// Icons (":/Pic/<name>.png") and compiled translations (":/i18n/<name>.qm")
// live in the static library lumidor_icons. Linking lumidor_icons pulls the
// whole archive in, so the resources register themselves; calling
// initLumidorResources() as well is harmless and makes the dependency plain
// where a program uses them before anything else.
void initLumidorResources();
