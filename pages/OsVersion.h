// The version tests and the gates made of them.
#pragma once

#include "pages/Gate.h"
#include "platform/OsVersion.h"
