// Resource ids of the empty program.
#pragma once

#define IDD_EMPTY 100
