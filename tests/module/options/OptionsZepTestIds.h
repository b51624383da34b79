#pragma once

#define IDI_HOST_PROGRAM 500
