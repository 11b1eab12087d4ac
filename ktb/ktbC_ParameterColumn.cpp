#include "ktb/ktbC_ParameterColumn.h"

#include <cmath>
#include <limits>
#include <string_view>

#include "framework/fw_PersistentClassImpl.h"

ktbC_ParameterColumn::ktbC_ParameterColumn(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

void ktbC_ParameterColumn::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}

// --- scripting: the default and the allowed values in the column's own type ----------------------

namespace {
using PC = ktbC_ParameterColumn;
using PType = PC::parameterTypeEnm;

const PC& ktbPC_Obj(const void* p) { return *static_cast<const PC*>(p); }
PC& ktbPC_Obj(void* p) { return *static_cast<PC*>(p); }

// Any text passes the converter as the member's text form; the column's type decides the rest.
constexpr omu_EnumLiteral ktbPC_kAnyText[] = {{nullptr, 0}};

std::int32_t ktbPC_Integer(const char* member, double d, const cls_Value& v) {
  if (std::trunc(d) != d || d < std::numeric_limits<std::int32_t>::min() || d > std::numeric_limits<std::int32_t>::max())
    fw_RefuseKind(member, v, "an int, the type of an INTEGER parameter");
  return static_cast<std::int32_t>(d);
}

cls_Value ktbPC_GetDefault(const void* p) {
  const PC& c = ktbPC_Obj(p);
  switch (c.GetParameterType()) {
    case PType::INTEGER: return c.GetParamDefaultVal_int();
    case PType::STRING: return c.GetParamDefaultVal_str();
    default: return c.GetParamDefaultVal_float();
  }
}

void ktbPC_SetDefault(void* p, const cls_Value& v) {
  PC& c = ktbPC_Obj(p);
  const double* d = std::get_if<double>(&v);
  const std::int32_t* i = std::get_if<std::int32_t>(&v);
  switch (c.GetParameterType()) {
    case PType::INTEGER:
      if (i) return c.SetParamDefaultVal_int(*i);
      if (d) return c.SetParamDefaultVal_int(ktbPC_Integer("default", *d, v));
      fw_RefuseKind("default", v, "an int, the type of an INTEGER parameter");
    case PType::STRING:
      if (const cow_String* s = std::get_if<cow_String>(&v)) return c.SetParamDefaultVal_str(*s);
      fw_RefuseKind("default", v, "a string, the type of a STRING parameter");
    default:
      if (d) return c.SetParamDefaultVal_float(*d);
      if (i) return c.SetParamDefaultVal_float(*i);
      fw_RefuseKind("default", v, "a number, the type of a FLOAT parameter");
  }
}

cls_Value ktbPC_GetAllowed(const void* p) {
  const PC& c = ktbPC_Obj(p);
  switch (c.GetParameterType()) {
    case PType::INTEGER: {
      const auto& l = c.GetParamAllowedVal_int();
      return std::vector<std::int32_t>(l.begin(), l.end());
    }
    case PType::STRING: {
      const auto& l = c.GetParamAllowedVal_str();
      return std::vector<cow_String>(l.begin(), l.end());
    }
    default: {
      const auto& l = c.GetParamAllowedVal_float();
      return std::vector<double>(l.begin(), l.end());
    }
  }
}

template <class T>
bool ktbPC_Empty(const cls_Value& v) {
  const auto* l = std::get_if<std::vector<T>>(&v);
  return l && l->empty();
}

void ktbPC_SetAllowed(void* p, const cls_Value& v) {
  PC& c = ktbPC_Obj(p);
  const auto* d = std::get_if<std::vector<double>>(&v);
  const auto* i = std::get_if<std::vector<std::int32_t>>(&v);
  const auto* s = std::get_if<std::vector<cow_String>>(&v);
  const bool empty = ktbPC_Empty<double>(v) || ktbPC_Empty<std::int32_t>(v) || ktbPC_Empty<cow_String>(v);
  switch (c.GetParameterType()) {
    case PType::INTEGER: {
      std::vector<std::int32_t> out;
      if (i) out = *i;
      else if (d)
        for (double x : *d) out.push_back(ktbPC_Integer("allowedValues", x, v));
      else if (!empty) fw_RefuseKind("allowedValues", v, "a list of ints, the type of an INTEGER parameter");
      return c.SetParamAllowedVal_int(cow_List<std::int32_t>(out));
    }
    case PType::STRING:
      if (!s && !empty) fw_RefuseKind("allowedValues", v, "a list of strings, the type of a STRING parameter");
      return c.SetParamAllowedVal_str(cow_List<cow_String>(s ? *s : std::vector<cow_String>()));
    default: {
      std::vector<double> out;
      if (d) out = *d;
      else if (i) out.assign(i->begin(), i->end());
      else if (!empty) fw_RefuseKind("allowedValues", v, "a list of numbers, the type of a FLOAT parameter");
      return c.SetParamAllowedVal_float(cow_List<double>(out));
    }
  }
}
}  // namespace

std::vector<cls_ScriptField> ktbC_ParameterColumn::ScriptFace(std::vector<cls_ScriptField> stored) {
  cls_ScriptField def{"default", "paramDefaultVal_float", 4, cls_AttrDouble, ktbPC_kAnyText, nullptr, false,
                      &ktbPC_GetDefault, &ktbPC_SetDefault, nullptr, nullptr};
  cls_ScriptField allowed{"allowedValues", "paramAllowedVal_float", 7, cls_AttrDoubleList, ktbPC_kAnyText, nullptr, false,
                          &ktbPC_GetAllowed, &ktbPC_SetAllowed, nullptr, nullptr};
  // After the parameter type, which decides how they read.
  std::vector<cls_ScriptField> out;
  for (const cls_ScriptField& f : stored) {
    out.push_back(f);
    if (std::string_view(f.persistentName) == "parameterType") {
      out.push_back(def);
      out.push_back(allowed);
    }
  }
  return out;
}

template class fw_PersistentClass<ktbC_ParameterColumn, mem_Allocated>;
