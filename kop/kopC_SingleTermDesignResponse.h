#pragma once
// A design response read from one result identifier.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_OrimDesignResponse.h"
#include "kop/kopC_SingleTermRequest.h"

class kopC_SingleTermDesignResponse : public fw_PersistentClass<kopC_SingleTermDesignResponse, kopC_OrimDesignResponse> {
 public:
  using BaseClass = kopC_OrimDesignResponse;
  using RootClass = kopC_DesignResponse;
  static constexpr const char* kClassName = "kopC_SingleTermDesignResponse";
  static constexpr const char* kScriptName = "SingleTermDesignResponse";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 18); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_SingleTermDesignResponse;
    return std::tuple{
        fw_Field{"request", 0, "request", &C::request},
    };
  }

  kopC_SingleTermDesignResponse() = default;
  explicit kopC_SingleTermDesignResponse(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const kopC_SingleTermRequest& GetRequest() const { return request; }
  kopC_SingleTermRequest& GetRequest() { return request; }
  void SetRequest(const kopC_SingleTermRequest& v) { request = v; }

 private:
  kopC_SingleTermRequest request;
};

extern template class fw_PersistentClass<kopC_SingleTermDesignResponse, kopC_OrimDesignResponse>;
