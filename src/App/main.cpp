// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "App/MorvaneApp.h"

int main(int argc, char** argv)
{
    return MorvaneApp().run(argc, argv);
}
