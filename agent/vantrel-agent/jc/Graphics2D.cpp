#include "Graphics2D.h"
#include "../common.h"
#include  <assert.h>

namespace NSGraphics2D{

	CACHE_JAVA_CLASS(Graphics2D) = NULL;

	//fields(0)

	//methods(39)

	CACHE_JAVA_METHOD(Graphics2D, transform, 0) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, fill, 1) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, rotate, 2) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, rotate, 3) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, scale, 4) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, draw3DRect, 5) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, fill3DRect, 6) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, draw, 7) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, drawImage, 8) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, drawImage, 9) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, drawRenderedImage, 10) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, drawRenderableImage, 11) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, drawString, 12) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, drawString, 13) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, drawString, 14) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, drawString, 15) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, drawGlyphVector, 16) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, hit, 17) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, getDeviceConfiguration, 18) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, setComposite, 19) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, setPaint, 20) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, setStroke, 21) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, setRenderingHint, 22) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, getRenderingHint, 23) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, setRenderingHints, 24) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, addRenderingHints, 25) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, getRenderingHints, 26) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, translate, 27) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, translate, 28) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, shear, 29) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, setTransform, 30) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, getTransform, 31) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, getPaint, 32) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, getComposite, 33) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, setBackground, 34) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, getBackground, 35) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, getStroke, 36) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, clip, 37) = NULL;

	CACHE_JAVA_METHOD(Graphics2D, getFontRenderContext, 38) = NULL;

	void transform(JNIEnv *env, jobject _this, jobject AffineTransform0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, transform, "(Ljava/awt/geom/AffineTransform;)V", 0);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, transform, 0), AffineTransform0);
	}

	void fill(JNIEnv *env, jobject _this, jobject Shape0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, fill, "(Ljava/awt/Shape;)V", 1);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, fill, 1), Shape0);
	}

	void rotate(JNIEnv *env, jobject _this, jdouble Double0, jdouble Double1, jdouble Double2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, rotate, "(DDD)V", 2);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, rotate, 2), Double0, Double1, Double2);
	}

	void rotate(JNIEnv *env, jobject _this, jdouble Double0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, rotate, "(D)V", 3);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, rotate, 3), Double0);
	}

	void scale(JNIEnv *env, jobject _this, jdouble Double0, jdouble Double1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, scale, "(DD)V", 4);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, scale, 4), Double0, Double1);
	}

	void draw3DRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jboolean Boolean4){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, draw3DRect, "(IIIIZ)V", 5);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, draw3DRect, 5), Int0, Int1, Int2, Int3, Boolean4);
	}

	void fill3DRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jboolean Boolean4){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, fill3DRect, "(IIIIZ)V", 6);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, fill3DRect, 6), Int0, Int1, Int2, Int3, Boolean4);
	}

	void draw(JNIEnv *env, jobject _this, jobject Shape0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, draw, "(Ljava/awt/Shape;)V", 7);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, draw, 7), Shape0);
	}

	jboolean drawImage(JNIEnv *env, jobject _this, jobject Image0, jobject AffineTransform1, jobject ImageObserver2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, drawImage, "(Ljava/awt/Image;Ljava/awt/geom/AffineTransform;Ljava/awt/image/ImageObserver;)Z", 8);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Graphics2D, drawImage, 8), Image0, AffineTransform1, ImageObserver2);
	}

	void drawImage(JNIEnv *env, jobject _this, jobject BufferedImage0, jobject BufferedImageOp1, jint Int2, jint Int3){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, drawImage, "(Ljava/awt/image/BufferedImage;Ljava/awt/image/BufferedImageOp;II)V", 9);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, drawImage, 9), BufferedImage0, BufferedImageOp1, Int2, Int3);
	}

	void drawRenderedImage(JNIEnv *env, jobject _this, jobject RenderedImage0, jobject AffineTransform1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, drawRenderedImage, "(Ljava/awt/image/RenderedImage;Ljava/awt/geom/AffineTransform;)V", 10);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, drawRenderedImage, 10), RenderedImage0, AffineTransform1);
	}

	void drawRenderableImage(JNIEnv *env, jobject _this, jobject RenderableImage0, jobject AffineTransform1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, drawRenderableImage, "(Ljava/awt/image/renderable/RenderableImage;Ljava/awt/geom/AffineTransform;)V", 11);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, drawRenderableImage, 11), RenderableImage0, AffineTransform1);
	}

	void drawStringWithStringIntInt(JNIEnv *env, jobject _this, jobject String0, jint Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, drawString, "(Ljava/lang/String;II)V", 12);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, drawString, 12), String0, Int1, Int2);
	}

	void drawStringWithAttributedCharacterIteratorFloatFloat(JNIEnv *env, jobject _this, jobject AttributedCharacterIterator0, jfloat Float1, jfloat Float2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, drawString, "(Ljava/text/AttributedCharacterIterator;FF)V", 13);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, drawString, 13), AttributedCharacterIterator0, Float1, Float2);
	}

	void drawStringWithStringFloatFloat(JNIEnv *env, jobject _this, jobject String0, jfloat Float1, jfloat Float2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, drawString, "(Ljava/lang/String;FF)V", 14);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, drawString, 14), String0, Float1, Float2);
	}

	void drawString(JNIEnv *env, jobject _this, jobject AttributedCharacterIterator0, jint Int1, jint Int2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, drawString, "(Ljava/text/AttributedCharacterIterator;II)V", 15);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, drawString, 15), AttributedCharacterIterator0, Int1, Int2);
	}

	void drawGlyphVector(JNIEnv *env, jobject _this, jobject GlyphVector0, jfloat Float1, jfloat Float2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, drawGlyphVector, "(Ljava/awt/font/GlyphVector;FF)V", 16);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, drawGlyphVector, 16), GlyphVector0, Float1, Float2);
	}

	jboolean hit(JNIEnv *env, jobject _this, jobject Rectangle0, jobject Shape1, jboolean Boolean2){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, hit, "(Ljava/awt/Rectangle;Ljava/awt/Shape;Z)Z", 17);
		return (jboolean)env->CallBooleanMethod(_this, JAVA_METHOD(Graphics2D, hit, 17), Rectangle0, Shape1, Boolean2);
	}

	jobject getDeviceConfiguration(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, getDeviceConfiguration, "()Ljava/awt/GraphicsConfiguration;", 18);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics2D, getDeviceConfiguration, 18));
	}

	void setComposite(JNIEnv *env, jobject _this, jobject Composite0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, setComposite, "(Ljava/awt/Composite;)V", 19);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, setComposite, 19), Composite0);
	}

	void setPaint(JNIEnv *env, jobject _this, jobject Paint0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, setPaint, "(Ljava/awt/Paint;)V", 20);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, setPaint, 20), Paint0);
	}

	void setStroke(JNIEnv *env, jobject _this, jobject Stroke0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, setStroke, "(Ljava/awt/Stroke;)V", 21);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, setStroke, 21), Stroke0);
	}

	void setRenderingHint(JNIEnv *env, jobject _this, jobject RenderingHints$Key0, jobject Object1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, setRenderingHint, "(Ljava/awt/RenderingHints$Key;Ljava/lang/Object;)V", 22);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, setRenderingHint, 22), RenderingHints$Key0, Object1);
	}

	jobject getRenderingHint(JNIEnv *env, jobject _this, jobject RenderingHints$Key0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, getRenderingHint, "(Ljava/awt/RenderingHints$Key;)Ljava/lang/Object;", 23);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics2D, getRenderingHint, 23), RenderingHints$Key0);
	}

	void setRenderingHints(JNIEnv *env, jobject _this, jobject Map0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, setRenderingHints, "(Ljava/util/Map;)V", 24);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, setRenderingHints, 24), Map0);
	}

	void addRenderingHints(JNIEnv *env, jobject _this, jobject Map0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, addRenderingHints, "(Ljava/util/Map;)V", 25);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, addRenderingHints, 25), Map0);
	}

	jobject getRenderingHints(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, getRenderingHints, "()Ljava/awt/RenderingHints;", 26);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics2D, getRenderingHints, 26));
	}

	void translateWithIntInt(JNIEnv *env, jobject _this, jint Int0, jint Int1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, translate, "(II)V", 27);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, translate, 27), Int0, Int1);
	}

	void translate(JNIEnv *env, jobject _this, jdouble Double0, jdouble Double1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, translate, "(DD)V", 28);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, translate, 28), Double0, Double1);
	}

	void shear(JNIEnv *env, jobject _this, jdouble Double0, jdouble Double1){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, shear, "(DD)V", 29);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, shear, 29), Double0, Double1);
	}

	void setTransform(JNIEnv *env, jobject _this, jobject AffineTransform0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, setTransform, "(Ljava/awt/geom/AffineTransform;)V", 30);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, setTransform, 30), AffineTransform0);
	}

	jobject getTransform(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, getTransform, "()Ljava/awt/geom/AffineTransform;", 31);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics2D, getTransform, 31));
	}

	jobject getPaint(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, getPaint, "()Ljava/awt/Paint;", 32);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics2D, getPaint, 32));
	}

	jobject getComposite(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, getComposite, "()Ljava/awt/Composite;", 33);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics2D, getComposite, 33));
	}

	void setBackground(JNIEnv *env, jobject _this, jobject Color0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, setBackground, "(Ljava/awt/Color;)V", 34);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, setBackground, 34), Color0);
	}

	jobject getBackground(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, getBackground, "()Ljava/awt/Color;", 35);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics2D, getBackground, 35));
	}

	jobject getStroke(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, getStroke, "()Ljava/awt/Stroke;", 36);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics2D, getStroke, 36));
	}

	void clip(JNIEnv *env, jobject _this, jobject Shape0){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, clip, "(Ljava/awt/Shape;)V", 37);
		env->CallVoidMethod(_this, JAVA_METHOD(Graphics2D, clip, 37), Shape0);
	}

	jobject getFontRenderContext(JNIEnv *env, jobject _this){
		INIT_CACHE_CLASS(env, JAVA_CLASS(Graphics2D), "java/awt/Graphics2D");
		INIT_CACHE_METHOD(env, Graphics2D, getFontRenderContext, "()Ljava/awt/font/FontRenderContext;", 38);
		return (jobject)env->CallObjectMethod(_this, JAVA_METHOD(Graphics2D, getFontRenderContext, 38));
	}

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		INIT_CACHE_CLASS(jni_env, Graphics2D, "java/awt/Graphics2D");
	}

	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env){
		DELETE_CACHED_CLASS_REF(jni_env, Graphics2D);
	}

}
