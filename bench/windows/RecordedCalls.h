// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <tests/automation/hosts/scripting/Com.h>

#include <dispex.h>

#include <map>
#include <vector>

namespace kob::bench {

/// One call of a host's object: the look-up of a name, or an Invoke.
struct RecordedCall {
  hosts::ComPtr<IDispatch> object;
  hosts::ComPtr<IDispatchEx> extended;
  /// A look-up's.
  hosts::Variant name;
  DISPID member = DISPID_UNKNOWN;
  WORD flags = 0;
  /// In reverse order, as they were given.
  std::vector<hosts::Variant> arguments;
};

/// Writes down what is called on a host's object and on every object that it leads to.
class RecordedCalls {
 public:
  RecordedCalls() = default;
  RecordedCalls(const RecordedCalls&) = delete;
  RecordedCalls& operator=(const RecordedCalls&) = delete;
  ~RecordedCalls();

  /// The object that passes calls of `object` on, and writes them down; the same one for the same object.
  hosts::ComPtr<IDispatch> stand(IDispatch* object);
  void add(RecordedCall call) { calls_.push_back(std::move(call)); }
  std::size_t count() const noexcept { return calls_.size(); }

  /// Makes all calls again, on the objects themselves.
  void replay();

 private:
  std::vector<RecordedCall> calls_;
  std::map<IUnknown*, hosts::ComPtr<IDispatch>> stands_;
};

}  // namespace kob::bench
