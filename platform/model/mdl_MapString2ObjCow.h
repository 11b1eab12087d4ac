#pragma once
// A repository of copy-on-write objects keyed by name, in natural key order. The names of an
// instantiation (kClassName, TypeId(), kVersion, kRepositoryName) come from mdl_MapTraits<T>,
// which the module that owns the container specializes.
#include "platform/model/mdl_KeyedRepository.h"

template <class T>
struct mdl_MapTraits;

template <class T>
using mdl_MapString2ObjCow = mdl_KeyedRepository<T, mdl_NameKeys, mdl_MapTraits<T>>;
