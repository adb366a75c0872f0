// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

/* The numbers of the binding's resources, which leave those free that a module has by custom. Also read by
   the resource compiler. */
#define KOB_CONTROLS_MANIFEST 2101
