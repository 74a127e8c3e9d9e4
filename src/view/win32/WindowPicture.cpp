#include "view/win32/WindowPicture.h"

#include "view/win32/WinPaint.h"

#include <wincodec.h>

#include <memory>

namespace Tarnwise {

namespace {

struct LetGo {
  void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using Held = std::unique_ptr<Interface, LetGo>;

// The window's place as the screen shows it, the children's pixels included.
Bitmap PixelsOf(HWND window, int width, int height) {
  const HDC from = GetDC(window);
  const HDC to = CreateCompatibleDC(from);
  Bitmap bitmap(CreateCompatibleBitmap(from, width, height));
  {
    const Selected selected(to, bitmap.get());
    BitBlt(to, 0, 0, width, height, from, 0, 0, SRCCOPY);
  }
  DeleteDC(to);
  ReleaseDC(window, from);
  return bitmap;
}

bool WriteFrame(IWICImagingFactory& factory, IWICBitmapEncoder& encoder, HBITMAP bitmap, int width, int height) {
  IWICBitmap* made = nullptr;
  if (FAILED(factory.CreateBitmapFromHBITMAP(bitmap, nullptr, WICBitmapIgnoreAlpha, &made))) return false;
  const Held<IWICBitmap> source(made);
  IWICBitmapFrameEncode* frameMade = nullptr;
  if (FAILED(encoder.CreateNewFrame(&frameMade, nullptr))) return false;
  const Held<IWICBitmapFrameEncode> frame(frameMade);
  WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
  return SUCCEEDED(frame->Initialize(nullptr)) &&
         SUCCEEDED(frame->SetSize(static_cast<UINT>(width), static_cast<UINT>(height))) &&
         SUCCEEDED(frame->SetPixelFormat(&format)) && SUCCEEDED(frame->WriteSource(source.get(), nullptr)) &&
         SUCCEEDED(frame->Commit()) && SUCCEEDED(encoder.Commit());
}

bool WritePng(HBITMAP bitmap, int width, int height, const std::wstring& path) {
  IWICImagingFactory* factoryMade = nullptr;
  if (FAILED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                              reinterpret_cast<void**>(&factoryMade)))) {
    return false;
  }
  const Held<IWICImagingFactory> factory(factoryMade);
  IWICStream* streamMade = nullptr;
  if (FAILED(factory->CreateStream(&streamMade))) return false;
  const Held<IWICStream> stream(streamMade);
  if (FAILED(stream->InitializeFromFilename(path.c_str(), GENERIC_WRITE))) return false;
  IWICBitmapEncoder* encoderMade = nullptr;
  if (FAILED(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, &encoderMade))) return false;
  const Held<IWICBitmapEncoder> encoder(encoderMade);
  return SUCCEEDED(encoder->Initialize(stream.get(), WICBitmapEncoderNoCache)) &&
         WriteFrame(*factory, *encoder, bitmap, width, height);
}

}  // namespace

bool SaveWindowPicture(HWND window, const std::wstring& path) {
  RECT client{};
  GetClientRect(window, &client);
  if (WidthOf(client) == 0 || HeightOf(client) == 0) return false;
  const Bitmap bitmap = PixelsOf(window, WidthOf(client), HeightOf(client));
  const bool entered = SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
  const bool written = bitmap && WritePng(bitmap.get(), WidthOf(client), HeightOf(client), path);
  if (entered) CoUninitialize();
  return written;
}

}  // namespace Tarnwise
