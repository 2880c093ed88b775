#ifndef GRAPHICS2D_H
#define GRAPHICS2D_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSGraphics2D{

	extern CACHE_JAVA_CLASS(Graphics2D);

	extern CACHE_JAVA_METHOD(Graphics2D, transform, 0);

	extern CACHE_JAVA_METHOD(Graphics2D, fill, 1);

	extern CACHE_JAVA_METHOD(Graphics2D, rotate, 2);

	extern CACHE_JAVA_METHOD(Graphics2D, rotate, 3);

	extern CACHE_JAVA_METHOD(Graphics2D, scale, 4);

	extern CACHE_JAVA_METHOD(Graphics2D, draw3DRect, 5);

	extern CACHE_JAVA_METHOD(Graphics2D, fill3DRect, 6);

	extern CACHE_JAVA_METHOD(Graphics2D, draw, 7);

	extern CACHE_JAVA_METHOD(Graphics2D, drawImage, 8);

	extern CACHE_JAVA_METHOD(Graphics2D, drawImage, 9);

	extern CACHE_JAVA_METHOD(Graphics2D, drawRenderedImage, 10);

	extern CACHE_JAVA_METHOD(Graphics2D, drawRenderableImage, 11);

	extern CACHE_JAVA_METHOD(Graphics2D, drawString, 12);

	extern CACHE_JAVA_METHOD(Graphics2D, drawString, 13);

	extern CACHE_JAVA_METHOD(Graphics2D, drawString, 14);

	extern CACHE_JAVA_METHOD(Graphics2D, drawString, 15);

	extern CACHE_JAVA_METHOD(Graphics2D, drawGlyphVector, 16);

	extern CACHE_JAVA_METHOD(Graphics2D, hit, 17);

	extern CACHE_JAVA_METHOD(Graphics2D, getDeviceConfiguration, 18);

	extern CACHE_JAVA_METHOD(Graphics2D, setComposite, 19);

	extern CACHE_JAVA_METHOD(Graphics2D, setPaint, 20);

	extern CACHE_JAVA_METHOD(Graphics2D, setStroke, 21);

	extern CACHE_JAVA_METHOD(Graphics2D, setRenderingHint, 22);

	extern CACHE_JAVA_METHOD(Graphics2D, getRenderingHint, 23);

	extern CACHE_JAVA_METHOD(Graphics2D, setRenderingHints, 24);

	extern CACHE_JAVA_METHOD(Graphics2D, addRenderingHints, 25);

	extern CACHE_JAVA_METHOD(Graphics2D, getRenderingHints, 26);

	extern CACHE_JAVA_METHOD(Graphics2D, translate, 27);

	extern CACHE_JAVA_METHOD(Graphics2D, translate, 28);

	extern CACHE_JAVA_METHOD(Graphics2D, shear, 29);

	extern CACHE_JAVA_METHOD(Graphics2D, setTransform, 30);

	extern CACHE_JAVA_METHOD(Graphics2D, getTransform, 31);

	extern CACHE_JAVA_METHOD(Graphics2D, getPaint, 32);

	extern CACHE_JAVA_METHOD(Graphics2D, getComposite, 33);

	extern CACHE_JAVA_METHOD(Graphics2D, setBackground, 34);

	extern CACHE_JAVA_METHOD(Graphics2D, getBackground, 35);

	extern CACHE_JAVA_METHOD(Graphics2D, getStroke, 36);

	extern CACHE_JAVA_METHOD(Graphics2D, clip, 37);

	extern CACHE_JAVA_METHOD(Graphics2D, getFontRenderContext, 38);

	void transform(JNIEnv *env, jobject _this, jobject AffineTransform0); //0 (Ljava/awt/geom/AffineTransform;)V

	void fill(JNIEnv *env, jobject _this, jobject Shape0); //1 (Ljava/awt/Shape;)V

	void rotate(JNIEnv *env, jobject _this, jdouble Double0, jdouble Double1, jdouble Double2); //2 (DDD)V

	void rotate(JNIEnv *env, jobject _this, jdouble Double0); //3 (D)V

	void scale(JNIEnv *env, jobject _this, jdouble Double0, jdouble Double1); //4 (DD)V

	void draw3DRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jboolean Boolean4); //5 (IIIIZ)V

	void fill3DRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jboolean Boolean4); //6 (IIIIZ)V

	void draw(JNIEnv *env, jobject _this, jobject Shape0); //7 (Ljava/awt/Shape;)V

	jboolean drawImage(JNIEnv *env, jobject _this, jobject Image0, jobject AffineTransform1, jobject ImageObserver2); //8 (Ljava/awt/Image;Ljava/awt/geom/AffineTransform;Ljava/awt/image/ImageObserver;)Z

	void drawImage(JNIEnv *env, jobject _this, jobject BufferedImage0, jobject BufferedImageOp1, jint Int2, jint Int3); //9 (Ljava/awt/image/BufferedImage;Ljava/awt/image/BufferedImageOp;II)V

	void drawRenderedImage(JNIEnv *env, jobject _this, jobject RenderedImage0, jobject AffineTransform1); //10 (Ljava/awt/image/RenderedImage;Ljava/awt/geom/AffineTransform;)V

	void drawRenderableImage(JNIEnv *env, jobject _this, jobject RenderableImage0, jobject AffineTransform1); //11 (Ljava/awt/image/renderable/RenderableImage;Ljava/awt/geom/AffineTransform;)V

	void drawStringWithStringIntInt(JNIEnv *env, jobject _this, jobject String0, jint Int1, jint Int2); //12 (Ljava/lang/String;II)V

	void drawStringWithAttributedCharacterIteratorFloatFloat(JNIEnv *env, jobject _this, jobject AttributedCharacterIterator0, jfloat Float1, jfloat Float2); //13 (Ljava/text/AttributedCharacterIterator;FF)V

	void drawStringWithStringFloatFloat(JNIEnv *env, jobject _this, jobject String0, jfloat Float1, jfloat Float2); //14 (Ljava/lang/String;FF)V

	void drawString(JNIEnv *env, jobject _this, jobject AttributedCharacterIterator0, jint Int1, jint Int2); //15 (Ljava/text/AttributedCharacterIterator;II)V

	void drawGlyphVector(JNIEnv *env, jobject _this, jobject GlyphVector0, jfloat Float1, jfloat Float2); //16 (Ljava/awt/font/GlyphVector;FF)V

	jboolean hit(JNIEnv *env, jobject _this, jobject Rectangle0, jobject Shape1, jboolean Boolean2); //17 (Ljava/awt/Rectangle;Ljava/awt/Shape;Z)Z

	jobject getDeviceConfiguration(JNIEnv *env, jobject _this); //18 ()Ljava/awt/GraphicsConfiguration;

	void setComposite(JNIEnv *env, jobject _this, jobject Composite0); //19 (Ljava/awt/Composite;)V

	void setPaint(JNIEnv *env, jobject _this, jobject Paint0); //20 (Ljava/awt/Paint;)V

	void setStroke(JNIEnv *env, jobject _this, jobject Stroke0); //21 (Ljava/awt/Stroke;)V

	void setRenderingHint(JNIEnv *env, jobject _this, jobject RenderingHints$Key0, jobject Object1); //22 (Ljava/awt/RenderingHints$Key;Ljava/lang/Object;)V

	jobject getRenderingHint(JNIEnv *env, jobject _this, jobject RenderingHints$Key0); //23 (Ljava/awt/RenderingHints$Key;)Ljava/lang/Object;

	void setRenderingHints(JNIEnv *env, jobject _this, jobject Map0); //24 (Ljava/util/Map;)V

	void addRenderingHints(JNIEnv *env, jobject _this, jobject Map0); //25 (Ljava/util/Map;)V

	jobject getRenderingHints(JNIEnv *env, jobject _this); //26 ()Ljava/awt/RenderingHints;

	void translateWithIntInt(JNIEnv *env, jobject _this, jint Int0, jint Int1); //27 (II)V

	void translate(JNIEnv *env, jobject _this, jdouble Double0, jdouble Double1); //28 (DD)V

	void shear(JNIEnv *env, jobject _this, jdouble Double0, jdouble Double1); //29 (DD)V

	void setTransform(JNIEnv *env, jobject _this, jobject AffineTransform0); //30 (Ljava/awt/geom/AffineTransform;)V

	jobject getTransform(JNIEnv *env, jobject _this); //31 ()Ljava/awt/geom/AffineTransform;

	jobject getPaint(JNIEnv *env, jobject _this); //32 ()Ljava/awt/Paint;

	jobject getComposite(JNIEnv *env, jobject _this); //33 ()Ljava/awt/Composite;

	void setBackground(JNIEnv *env, jobject _this, jobject Color0); //34 (Ljava/awt/Color;)V

	jobject getBackground(JNIEnv *env, jobject _this); //35 ()Ljava/awt/Color;

	jobject getStroke(JNIEnv *env, jobject _this); //36 ()Ljava/awt/Stroke;

	void clip(JNIEnv *env, jobject _this, jobject Shape0); //37 (Ljava/awt/Shape;)V

	jobject getFontRenderContext(JNIEnv *env, jobject _this); //38 ()Ljava/awt/font/FontRenderContext;

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
