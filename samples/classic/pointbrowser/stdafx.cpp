// stdafx.cpp : the precompiled header comes from here

#include "stdafx.h"
