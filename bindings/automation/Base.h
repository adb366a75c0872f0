// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

// The types of Base.idl for the header that is made from KOBTraduction.idl, and for everything in this room:
// the system's headers in the order that they need.
#include <windows.h>

#include <oaidl.h>
#include <ocidl.h>
#include <ole2.h>
#include <oleauto.h>

#include <dispex.h>
