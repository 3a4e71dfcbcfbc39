#include "vynx/CommandLine.h"

int main(int argc, char** argv) {
    return Vynx::Run(argc, argv);
}
