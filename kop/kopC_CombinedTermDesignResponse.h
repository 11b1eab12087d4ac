#pragma once
// A design response combined from other design responses.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_OrimDesignResponse.h"
#include "kop/kopC_CombinedTermRequest.h"

class kopC_CombinedTermDesignResponse : public fw_PersistentClass<kopC_CombinedTermDesignResponse, kopC_OrimDesignResponse> {
 public:
  using BaseClass = kopC_OrimDesignResponse;
  using RootClass = kopC_DesignResponse;
  static constexpr const char* kClassName = "kopC_CombinedTermDesignResponse";
  static constexpr const char* kScriptName = "CombinedTermDesignResponse";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 19); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_CombinedTermDesignResponse;
    return std::tuple{
        fw_Field{"request", 0, "request", &C::request},
    };
  }

  kopC_CombinedTermDesignResponse() = default;
  explicit kopC_CombinedTermDesignResponse(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const kopC_CombinedTermRequest& GetRequest() const { return request; }
  kopC_CombinedTermRequest& GetRequest() { return request; }
  void SetRequest(const kopC_CombinedTermRequest& v) { request = v; }

 private:
  kopC_CombinedTermRequest request;
};

extern template class fw_PersistentClass<kopC_CombinedTermDesignResponse, kopC_OrimDesignResponse>;
