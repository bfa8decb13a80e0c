#pragma once

/// Runs a test in a folder of its own. The manager starts the server that stands beside the executable, so a test that
/// brings its own server must not stand where all executables do, and two of them not in one place.
///
/// Makes a temporary folder with this executable, the scripted server under the name that the manager looks for, and
/// the helper "deaths"; runs this executable there with the same arguments and the folder as place for temporary
/// files, and removes everything in the end. In that second process `runTest` is called. Returns the test's exit code.
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
