#pragma once

// The colour rules live with the pictures, which the headless baker shares.
#include "picture/colours.h"
