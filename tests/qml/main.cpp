// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Setup.h"

#include <QQmlExtensionPlugin>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(Morvane_ViewModelPlugin)
Q_IMPORT_QML_PLUGIN(Morvane_ViewsPlugin)
Q_IMPORT_QML_PLUGIN(Morvane_Views_ControlsPlugin)

QUICK_TEST_MAIN_WITH_SETUP(Views, Setup)
