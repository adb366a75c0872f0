// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NamedFunctions.h"

#include "Counted.h"

#include <kobtraduction/base/Text.h>

#include <oleauto.h>

#include <algorithm>
#include <memory>

namespace kob::hosts {

namespace {

class NamedFunctions final : public Counted<IDispatch> {
 public:
  explicit NamedFunctions(std::vector<std::pair<Text, Function>> functions)
      : functions_(std::move(functions)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    return answer(id == IID_IUnknown || id == IID_IDispatch ? this : nullptr, object);
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
    std::fill(ids, ids + count, DISPID_UNKNOWN);
    const Text name = textOf(names[0]);
    for (std::size_t i = 0; i < functions_.size(); ++i) {
      if (!functions_[i].first.empty() && equalUpper(functions_[i].first, name)) {
        ids[0] = static_cast<DISPID>(i) + 1;
        return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
      }
    }
    return DISP_E_UNKNOWNNAME;
  }

  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD how, DISPPARAMS* parameters, VARIANT* result,
                                   EXCEPINFO* exception, UINT*) override {
    const Function* const function = find(id);
    if (function == nullptr || (how & (DISPATCH_METHOD | DISPATCH_PROPERTYGET)) == 0) {
      return DISP_E_MEMBERNOTFOUND;
    }
    try {
      Arguments arguments;
      for (UINT i = parameters->cArgs; i > 0; --i) {
        Variant copy;
        check(VariantCopyInd(copy.get(), &parameters->rgvarg[i - 1]), u"an argument cannot be read");
        arguments.push_back(std::move(copy));
      }
      Variant answer = (*function)(arguments);
      if (result != nullptr) {
        std::swap(*result, *answer.get());
      }
      return S_OK;
    } catch (const ComError& error) {
      if (exception != nullptr) {
        *exception = {};
        exception->scode = error.number;
        exception->bstrSource = bstrOf(u"script host");
        exception->bstrDescription = bstrOf(error.description);
      }
      return DISP_E_EXCEPTION;
    }
  }

 private:
  const Function* find(DISPID id) const {
    const auto named = [this](TextView name) {
      const auto found = std::find_if(functions_.begin(), functions_.end(),
                                      [name](const auto& one) { return one.first == name; });
      return found == functions_.end() ? nullptr : &found->second;
    };
    if (id == DISPID_VALUE || id == DISPID_NEWENUM) {
      return named(id == DISPID_VALUE ? TextView() : TextView(u"_NewEnum"));
    }
    const bool has = id >= 1 && static_cast<std::size_t>(id) <= functions_.size();
    return has ? &functions_[static_cast<std::size_t>(id) - 1].second : nullptr;
  }

  std::vector<std::pair<Text, Function>> functions_;
};

using Items = std::vector<Variant>;

class ItemEnumerator final : public Counted<IEnumVARIANT> {
 public:
  ItemEnumerator(std::shared_ptr<Items> items, std::size_t next) : items_(std::move(items)), next_(next) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    return answer(id == IID_IUnknown || id == IID_IEnumVARIANT ? this : nullptr, object);
  }

  HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT* values, ULONG* given) override {
    ULONG count = 0;
    for (; count < wanted && next_ < items_->size(); ++count) {
      VariantInit(&values[count]);
      VariantCopy(&values[count], (*items_)[next_++].get());
    }
    if (given != nullptr) {
      *given = count;
    }
    return count == wanted ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
    next_ = std::min<std::size_t>(next_ + count, items_->size());
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Reset() override {
    next_ = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) override {
    *copy = new ItemEnumerator(items_, next_);
    return S_OK;
  }

 private:
  std::shared_ptr<Items> items_;
  std::size_t next_;
};

}  // namespace

ComPtr<IDispatch> namedFunctions(std::vector<std::pair<Text, Function>> functions) {
  return ComPtr<IDispatch>::adopt(new NamedFunctions(std::move(functions)));
}

ComPtr<IDispatch> listObject() {
  const auto items = std::make_shared<Items>();
  const Function add = [items](const Arguments& arguments) {
    items->push_back(argumentAt(arguments, 0));
    return Variant();
  };
  const Function count = [items](const Arguments&) {
    return Variant(static_cast<std::int32_t>(items->size()));
  };
  const Function item = [items](const Arguments& arguments) {
    const std::int32_t place = argumentAt(arguments, 0).number();
    if (place < 1 || static_cast<std::size_t>(place) > items->size()) {
      throw ComError{DISP_E_BADINDEX, DISP_E_BADINDEX, u"no such item"};
    }
    return (*items)[static_cast<std::size_t>(place) - 1];
  };
  const Function enumerate = [items](const Arguments&) {
    Variant enumerator;
    enumerator.get()->vt = VT_UNKNOWN;
    enumerator.get()->punkVal = new ItemEnumerator(items, 0);
    return enumerator;
  };
  return namedFunctions(
      {{u"Add", add}, {u"Count", count}, {u"Item", item}, {u"", item}, {u"_NewEnum", enumerate}});
}

const Variant& argumentAt(const Arguments& arguments, std::size_t place) {
  if (place >= arguments.size()) {
    throw ComError{DISP_E_PARAMNOTOPTIONAL, DISP_E_PARAMNOTOPTIONAL, u"an argument is missing"};
  }
  return arguments[place];
}

}  // namespace kob::hosts
