# Installation: the CMake package KOBTraduction (KOBTraduction::Core, KOBTraduction::Qt) and the pkg-config files.
