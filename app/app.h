#pragma once
// Application shell: process entry, main window, refresh, views, menus, event view.

#include "app/sk_backend.h"
#include "app/sk_languages.h"
#include "app/sk_mainwindow.h"
#include "app/sk_settings.h"
#include "app/sk_singleinstance.h"
#include "app/sk_startup.h"
#include "app/sk_version.h"
