#include "DeathCase.h"

int main(int argc, char** argv)
{
    return RunDeathCases(argc, argv);
}
