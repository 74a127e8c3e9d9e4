#include "Main.h"

int main(int argc, char** argv) { return Tarnwise::RunWindowTests(argc, argv); }
