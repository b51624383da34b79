#include "KZDriver.h"

IMPLEMENT_DYNAMIC(KZDriver, CObject)
