#pragma once

#include <cstdint>

#include "backend/directory/Records.h"

namespace mindloft {

/// The record of the sample domain of that number (from 0); names are unique.
DomainRecord SampleDomain(std::int64_t number);

/// The record of a sample domain's group of that number (from 0); names are unique within the domain.
GroupRecord SampleGroup(ObjectId domain, std::int64_t number);

}  // namespace mindloft
