// SPDX-License-Identifier: MIT
#include "app/application.h"

int main(int argc, char** argv)
{
    return runApplication(argc, argv);
}
