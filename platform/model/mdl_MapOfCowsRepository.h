#pragma once
// A repository of copy-on-write objects keyed by a 32-bit integer, in key order; scripts address
// an element by the key's decimal text. The names of an instantiation (kClassName, TypeId(),
// kVersion, kRepositoryName) come from mdl_MapOfCowsTraits<T>, which the owning module specializes.
#include "platform/model/mdl_KeyedRepository.h"

template <class T>
struct mdl_MapOfCowsTraits;

template <class T>
using mdl_MapOfCowsRepository = mdl_KeyedRepository<T, mdl_IntegerKeys, mdl_MapOfCowsTraits<T>>;
