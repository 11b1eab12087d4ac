#pragma once
// The design responses of the optimization module: the part the single-term and combined-term kinds share.
#include <cstdint>
#include <tuple>

#include "kop/kopC_DesignResponse.h"

class kopC_OrimDesignResponse : public kopC_DesignResponse {
 public:
  using BaseClass = kopC_DesignResponse;
  using RootClass = kopC_DesignResponse;
  static constexpr const char* kClassName = "kopC_OrimDesignResponse";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 17); }

  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

 protected:
  kopC_OrimDesignResponse() = default;
  kopC_OrimDesignResponse(const kopC_OrimDesignResponse&) = default;
  kopC_OrimDesignResponse& operator=(const kopC_OrimDesignResponse&) = default;
  explicit kopC_OrimDesignResponse(const cls_ReadVisitor& r);

 protected:
};
