#pragma once

// The business objects as the forms see them: thin, counted views on the directory's records. Operations
// stand in the order of their contract. All texts are UTF-8. A put is buffered in its object until Update;
// CancelEdit drops it.

#include "backend/corvane/Application.h"
#include "backend/corvane/ConfigDocument.h"
#include "backend/corvane/ConfigValue.h"
#include "backend/corvane/Connection.h"
#include "backend/corvane/DGroup.h"
#include "backend/corvane/DGroups.h"
#include "backend/corvane/DomainContext.h"
#include "backend/corvane/KDomain.h"
#include "backend/corvane/KDomains.h"
#include "backend/corvane/Log.h"
#include "backend/corvane/Role.h"
#include "backend/corvane/Roles.h"
#include "backend/corvane/Server.h"
#include "backend/corvane/Session.h"
#include "backend/corvane/Style.h"
#include "backend/corvane/Styles.h"
#include "backend/corvane/User.h"
#include "backend/corvane/Users.h"
#include "backend/corvane/View.h"
