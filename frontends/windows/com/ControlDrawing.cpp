// The control as a picture, for hosts that show it while it is not active, or print it.
#include <algorithm>

#include "com/ControlObject.h"
#include "com/Sketch.h"

namespace quorvel::windows {

HRESULT ControlObject::Draw(DWORD aspect, LONG /*index*/, void* /*aspectInfo*/, DVTARGETDEVICE* /*target*/,
                            HDC /*targetDevice*/, HDC canvas, LPCRECTL place, LPCRECTL /*metafilePlace*/,
                            BOOL(STDMETHODCALLTYPE* /*goOn*/)(ULONG_PTR), ULONG_PTR /*argument*/) noexcept {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (canvas == nullptr || place == nullptr) return E_POINTER;
  return Answering(__uuidof(IViewObject2), [&] {
    // Hosts that draw upwards swap the edges.
    const RECT upright{std::min(place->left, place->right), std::min(place->top, place->bottom),
                       std::max(place->left, place->right), std::max(place->top, place->bottom)};
    DrawSketch(control().controls(), canvas, upright);
  });
}

HRESULT ControlObject::GetColorSet(DWORD /*aspect*/, LONG /*index*/, void* /*aspectInfo*/, DVTARGETDEVICE* /*target*/,
                                   HDC /*targetDevice*/, LOGPALETTE** colours) noexcept {
  if (colours == nullptr) return E_POINTER;
  *colours = nullptr;
  return S_FALSE;
}

HRESULT ControlObject::Freeze(DWORD /*aspect*/, LONG /*index*/, void* /*aspectInfo*/, DWORD* /*freeze*/) noexcept {
  return E_NOTIMPL;
}

HRESULT ControlObject::Unfreeze(DWORD /*freeze*/) noexcept {
  return E_NOTIMPL;
}

HRESULT ControlObject::SetAdvise(DWORD aspects, DWORD how, IAdviseSink* sink) noexcept {
  viewSink_ = ComPtr<IAdviseSink>(sink);
  viewSinkAspects_ = aspects;
  viewSinkHow_ = how;
  return S_OK;
}

HRESULT ControlObject::GetAdvise(DWORD* aspects, DWORD* how, IAdviseSink** sink) noexcept {
  if (aspects != nullptr) *aspects = viewSinkAspects_;
  if (how != nullptr) *how = viewSinkHow_;
  if (sink != nullptr) *sink = ComPtr<IAdviseSink>(viewSink_).Detach();
  return S_OK;
}

HRESULT ControlObject::GetExtent(DWORD aspect, LONG /*index*/, DVTARGETDEVICE* /*target*/, SIZEL* extent) noexcept {
  return GetExtent(aspect, extent);
}

}  // namespace quorvel::windows
