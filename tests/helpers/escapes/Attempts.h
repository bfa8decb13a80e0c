// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <sys/types.h>

#include <map>
#include <string>

/// What a program that a picture has taken over would try, and what a worker needs.
///
/// An attempt gives 0 when the system let it happen, else the error number.
using Attempt = int (*)();
using Attempts = std::map<std::string, Attempt>;

Attempts FileAttempts();
Attempts ProcessAttempts();
Attempts MemoryAttempts();
Attempts NeededWork();

/// Another process of this user, with the same memory as this one had when it started.
pid_t Victim();

/// A variable of the victim.
extern volatile int victimsSecret;

/// 0, or the error number, of a call that gives a negative number when it fails.
int Outcome(long result);
