// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DeathCase.h"

int main(int argc, char** argv)
{
    return RunDeathCases(argc, argv);
}
