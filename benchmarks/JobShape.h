// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

/// How the files of a job are distributed: all in one folder, or hundreds per folder and several folders per folder.
enum class JobShape { OneFolder, Realistic };

constexpr int filesPerFolder = 300;
constexpr int foldersPerFolder = 20;

inline const char* Title(JobShape shape)
{
    return shape == JobShape::OneFolder ? "One folder" : "Realistic tree";
}
