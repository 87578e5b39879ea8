#pragma once
// Small steps of the start-up sequence, kept apart so they can be tested.
#include <QString>

// Directory part of argv[0] including its trailing separator (the last
// back-slash, else the last slash); empty when there is no separator.
QString executableDirFromArgv0(const QString& argv0);
// Makes the directory of argv[0] current; false (and nothing changed) when
// argv[0] has no directory part or it cannot be entered.
bool changeToExecutableDir(const char* argv0);
// The arguments after argv[0] joined with single blanks; empty for none.
QString joinCommandLine(int argc, char** argv);
