// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

/// Runs a test in a folder of its own. The manager starts the server that is beside the executable, so each test with a
/// server of its own needs a folder of its own.
///
/// Creates a temporary folder with this executable, the scripted server under the name of the real one, and the helper
/// "deaths". Runs this executable there, with the same arguments and with the folder for temporary files; that second
/// process calls `runTest`. Removes the folder afterwards, and returns the test's exit code.
int RunInOwnFolder(int argc, char** argv, int (*runTest)(int, char**));

/// The main() of such a test without a display.
#define OWN_FOLDER_TEST_MAIN(TestClass)                                                                                \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        return RunInOwnFolder(argc, argv, [](int testArgc, char** testArgv) {                                          \
            QCoreApplication application(testArgc, testArgv);                                                          \
            TestClass test;                                                                                            \
            return QTest::qExec(&test, testArgc, testArgv);                                                            \
        });                                                                                                            \
    }
