#pragma once
// A design response read from one result identifier.
#include <cstdint>
#include <tuple>

#include "kop/kopC_OrimDesignResponse.h"
#include "kop/kopC_SingleTermRequest.h"

class kopC_SingleTermDesignResponse : public kopC_OrimDesignResponse {
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
  void DBWrite(const cls_WriteVisitor& w) const override;
  kopC_SingleTermDesignResponse* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const kopC_SingleTermDesignResponse& o) const;
  bool operator!=(const kopC_SingleTermDesignResponse& o) const { return !(*this == o); }

  const kopC_SingleTermRequest& GetRequest() const { return request; }
  kopC_SingleTermRequest& GetRequest() { return request; }
  void SetRequest(const kopC_SingleTermRequest& v) { request = v; }

 protected:
  bool SameAs(const kopC_DesignResponse& o) const override;

 private:
  kopC_SingleTermRequest request;
};
