// Ids of the test extension library's resources.
#pragma once

#define IDD_EXTENSION 4100
#define IDD_SHADOWED 4001  // the test program has one too
