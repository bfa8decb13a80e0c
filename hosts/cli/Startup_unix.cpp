#include "Startup.h"

#include "UsageError.h"

#include <QFile>

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <langinfo.h>

namespace BatchCli {

void PrepareProcess()
{
    // Qt opens files by the locale's encoding. In the C locale of scripts and containers every name with an accent
    // would be out of reach, for the server too.
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) {
        setenv("LC_ALL", "C.UTF-8", 1);
        std::setlocale(LC_ALL, "");
    }
}

QStringList Arguments(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        const QString argument = QFile::decodeName(argv[i]);
        if (QFile::encodeName(argument) != argv[i]) {
            throw UsageError{QStringLiteral("argument %1 (%2) is not valid UTF-8").arg(i).arg(argument)};
        }
        arguments.append(argument);
    }
    return arguments;
}

} // namespace BatchCli
