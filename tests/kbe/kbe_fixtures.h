#pragma once
// Filled behaviors of every kind and file helpers shared by the connector behavior tests.
#include <string>

#include "kbe/kbeC_CDCTerm.h"
#include "kbe/kbeC_ConnectorDamage.h"
#include "kbe/kbeC_ConnectorDamping.h"
#include "kbe/kbeC_ConnectorElasticity.h"
#include "kbe/kbeC_ConnectorFailure.h"
#include "kbe/kbeC_ConnectorFriction.h"
#include "kbe/kbeC_ConnectorLock.h"
#include "kbe/kbeC_ConnectorPlasticity.h"
#include "kbe/kbeC_ConnectorSection.h"
#include "kbe/kbeC_ConnectorSectionContainer.h"
#include "kbe/kbeC_ConnectorStop.h"
#include "platform/model/ddr_Database.h"
#include "tests/kbe/kbe_test.h"

// A section with one option of each kind, in the order elasticity, damping, plasticity,
// friction, damage, failure, lock, stop; every member away from its default where it can be.
kbeC_ConnectorSection kbe_FilledSection();
kbeC_ConnectorSectionContainer& kbe_Sections(ddr_Database& db, const char* model = "Model-1");
// The first column of the first row of a query on a file; SQL run on a file, kept well-formed.
std::string kbe_Query(const std::string& file, const std::string& sql);
void kbe_Edit(const std::string& file, const std::string& sql);
